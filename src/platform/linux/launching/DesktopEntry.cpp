#include "platform/linux/launching/DesktopEntry.h"

#include <optional>
#include <utility>

#include "support/Translation.h"

namespace kinesta {
namespace {

// A word with its field codes replaced; nothing if it held only codes for documents.
std::optional<std::string> expanded(const std::string& word, const std::string& name, const std::string& path) {
    std::string result;
    bool hadOnlyCodes = !word.empty();
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%' || i + 1 == word.size()) {
            result += word[i];
            hadOnlyCodes = false;
            continue;
        }
        const char code = word[++i];
        if (code == '%')
            result += '%';
        else if (code == 'c')
            result += name;
        else if (code == 'k')
            result += path;
        hadOnlyCodes = hadOnlyCodes && code != '%' && code != 'c' && code != 'k';
    }
    if (hadOnlyCodes)
        return std::nullopt;
    return result;
}

}  // namespace

Result<DesktopEntry> DesktopEntry::read(const std::string& path, const std::string& locale) {
    const auto file = DesktopFile::read(path);
    if (!file)
        return Error{translated("%1 cannot be read; choose the application again.", {path})};
    return of(*file, path, locale);
}

Result<DesktopEntry> DesktopEntry::of(const DesktopFile& file, const std::string& path, const std::string& locale) {
    const auto words = DesktopFile::words(file.value("Exec"));
    if (file.value("Type") != "Application" || !words || words->empty())
        return Error{translated("%1 does not say how to start an application; choose another file.", {path})};

    DesktopEntry entry;
    entry.workingDirectory = file.value("Path");
    entry.runsInTerminal = file.value("Terminal") == "true";
    const std::string name = file.localizedValue("Name", locale);
    for (const std::string& word : *words) {
        if (word == "%i") {
            if (const std::string icon = file.value("Icon"); !icon.empty())
                entry.command.insert(entry.command.end(), {"--icon", icon});
        } else if (auto text = expanded(word, name, path)) {
            entry.command.push_back(std::move(*text));
        }
    }
    if (entry.command.empty() || entry.command.front().empty())
        return Error{translated("%1 does not say how to start an application; choose another file.", {path})};
    return entry;
}

}  // namespace kinesta
