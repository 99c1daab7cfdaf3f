#include "platform/linux/launching/DesktopEntry.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "support/Text.h"

namespace kinesta {
namespace {

using Keys = std::map<std::string, std::string, std::less<>>;

std::string unescaped(std::string_view value) {
    std::string result;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        const char next = value[++i];
        switch (next) {
            case 's':
                result += ' ';
                break;
            case 'n':
                result += '\n';
                break;
            case 't':
                result += '\t';
                break;
            case 'r':
                result += '\r';
                break;
            case '\\':
                result += '\\';
                break;
            default:  // an escape of the Exec line, resolved later
                result += {'\\', next};
        }
    }
    return result;
}

Keys readKeys(std::istream& file) {
    Keys keys;
    bool isInGroup = false;
    for (std::string line; std::getline(file, line);) {
        const std::string_view text = trimmed(line);
        if (text.starts_with('['))
            isInGroup = text == "[Desktop Entry]";
        const auto equals = text.find('=');
        if (!isInGroup || text.starts_with('#') || equals == std::string_view::npos)
            continue;
        keys.emplace(trimmed(text.substr(0, equals)), unescaped(trimmed(text.substr(equals + 1))));
    }
    return keys;
}

std::string valueOf(const Keys& keys, std::string_view name) {
    const auto found = keys.find(name);
    return found == keys.end() ? std::string() : found->second;
}

// The value for a locale lang_COUNTRY.ENCODING@MODIFIER; the closest match wins.
std::string localizedValueOf(const Keys& keys, const std::string& name, std::string_view locale) {
    const auto at = locale.find('@');
    const std::string modifier(at == std::string_view::npos ? "" : locale.substr(at));
    const std::string country(locale.substr(0, std::min(at, locale.find('.'))));
    const std::string language = country.substr(0, country.find('_'));
    for (const std::string& candidate : {country + modifier, country, language + modifier, language})
        if (const auto found = keys.find(name + "[" + candidate + "]"); found != keys.end())
            return found->second;
    return valueOf(keys, name);
}

// The words of a command line, split and unquoted as in a shell, without expansion. Nothing if a quote is not closed.
std::optional<std::vector<std::string>> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    std::string word;
    bool isInWord = false;
    char quote = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        const bool hasNext = i + 1 < line.size();
        if (quote == 0 && (c == ' ' || c == '\t' || c == '\n')) {
            if (isInWord)
                words.push_back(std::exchange(word, {}));
            isInWord = false;
            continue;
        }
        isInWord = true;
        if (c == quote)
            quote = 0;
        else if (quote == 0 && (c == '"' || c == '\''))
            quote = c;
        else if (c == '\\' && hasNext &&
                 (quote == 0 ||
                  (quote == '"' && std::string_view("\"`$\\").find(line[i + 1]) != std::string_view::npos)))
            word += line[++i];
        else
            word += c;
    }
    if (quote != 0)
        return std::nullopt;
    if (isInWord)
        words.push_back(word);
    return words;
}

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
    std::ifstream file(path);
    if (!file)
        return Error{path + " cannot be read; choose the application again."};
    const Keys keys = readKeys(file);
    const auto words = wordsOf(valueOf(keys, "Exec"));
    if (valueOf(keys, "Type") != "Application" || !words || words->empty())
        return Error{path + " does not say how to start an application; choose another file."};

    DesktopEntry entry;
    entry.workingDirectory = valueOf(keys, "Path");
    entry.runsInTerminal = valueOf(keys, "Terminal") == "true";
    const std::string name = localizedValueOf(keys, "Name", locale);
    for (const std::string& word : *words) {
        if (word == "%i") {
            if (const std::string icon = valueOf(keys, "Icon"); !icon.empty())
                entry.command.insert(entry.command.end(), {"--icon", icon});
        } else if (auto text = expanded(word, name, path)) {
            entry.command.push_back(std::move(*text));
        }
    }
    if (entry.command.empty() || entry.command.front().empty())
        return Error{path + " does not say how to start an application; choose another file."};
    return entry;
}

}  // namespace kinesta
