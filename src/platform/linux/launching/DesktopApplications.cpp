#include "platform/linux/launching/DesktopApplications.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <set>
#include <string_view>
#include <utility>

#include "actions/OpenTarget.h"
#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "platform/linux/process/SessionEnvironment.h"
#include "support/Text.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

std::string variable(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value == nullptr || value[0] == '\0' ? fallback : value;
}

/// The absolute paths of a list with colons; others have no meaning there.
std::vector<std::string> folders(std::string_view list) {
    std::vector<std::string> result;
    while (!list.empty()) {
        const auto colon = std::min(list.find(':'), list.size());
        if (list.starts_with('/'))
            result.emplace_back(list.substr(0, colon));
        list.remove_prefix(std::min(colon + 1, list.size()));
    }
    return result;
}

/// The data folders of the session, the most important one first.
std::vector<std::string> dataFolders() {
    const std::string home = expandingTilde("~/.local/share", PosixHomeFolders());
    std::vector<std::string> result{variable("XDG_DATA_HOME", home)};
    for (std::string& folder : folders(variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share")))
        result.push_back(std::move(folder));
    return result;
}

bool isProgram(const std::string& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored) && ::access(path.c_str(), X_OK) == 0;
}

/// Whether a list of the file names this desktop.
bool namesDesktop(std::string_view list) {
    while (!list.empty()) {
        const auto end = std::min(list.find(';'), list.size());
        if (const auto name = trimmed(list.substr(0, end)); !name.empty() && isCurrentDesktop(std::string(name)))
            return true;
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return false;
}

bool isInMenu(const DesktopFile& file) {
    if (file.value("NoDisplay") == "true" || file.value("Hidden") == "true")
        return false;
    if (const auto only = file.value("OnlyShowIn"); !only.empty() && !namesDesktop(only))
        return false;
    if (namesDesktop(file.value("NotShowIn")))
        return false;
    const std::string tried = file.value("TryExec");
    return tried.empty() || (tried.starts_with('/') ? isProgram(tried) : isInSearchPath(tried));
}

std::optional<InstalledApplication> describe(const DesktopFile& file, const std::string& path) {
    const std::string locale = DesktopFile::messageLocale();
    if (!DesktopEntry::of(file, path, locale))
        return std::nullopt;
    std::string name = file.localizedValue("Name", locale);
    if (!isUtf8(name) || trimmed(name).empty())
        name = fs::path(path).stem();
    std::string icon = file.value("Icon");
    return InstalledApplication{std::move(name), path, isUtf8(icon) ? std::move(icon) : std::string()};
}

class Search {
  public:
    /// Takes in what no earlier folder has under the same name.
    void add(const std::string& folder) { addFolder(folder + "/applications", ""); }

    std::vector<InstalledApplication> result() && {
        std::ranges::sort(m_found, [](const auto& a, const auto& b) {
            const int order = std::strcoll(lowerCased(a.name).c_str(), lowerCased(b.name).c_str());
            return order != 0 ? order < 0 : a.path < b.path;
        });
        return std::move(m_found);
    }

  private:
    void addFolder(const fs::path& folder, const std::string& prefix) {
        std::error_code error;
        // Links may lead in a circle.
        if (!m_folders.insert(fs::canonical(folder, error).string()).second)
            return;
        for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
             entry.increment(error)) {
            const std::string path = entry->path().string();
            const std::string name = prefix + entry->path().filename().string();
            std::error_code ignored;
            if (entry->is_directory(ignored))
                addFolder(path, name + "-");
            else if (name.ends_with(".desktop") && isUtf8(path) && entry->is_regular_file(ignored) &&
                     m_names.insert(name).second)
                addFile(path);
        }
    }

    void addFile(const std::string& path) {
        const auto file = DesktopFile::read(path);
        if (!file || !isInMenu(*file))
            return;
        if (auto application = describe(*file, path))
            m_found.push_back(std::move(*application));
    }

    std::set<std::string> m_folders;
    /// A file that hides its application hides those of later folders, too.
    std::set<std::string> m_names;
    std::vector<InstalledApplication> m_found;
};

}  // namespace

std::vector<InstalledApplication> DesktopApplications::all() const {
    Search search;
    for (const std::string& folder : dataFolders())
        search.add(folder);
    return std::move(search).result();
}

std::optional<InstalledApplication> DesktopApplications::at(const std::string& path) const {
    const std::string file = expandingTilde(path, PosixHomeFolders());
    std::error_code ignored;
    if (file.ends_with(".desktop")) {
        const auto content = fs::is_regular_file(file, ignored) ? DesktopFile::read(file) : std::nullopt;
        return content ? describe(*content, file) : std::nullopt;
    }
    if (!isProgram(file))
        return std::nullopt;
    return InstalledApplication{fs::path(file).filename(), file, {}};
}

}  // namespace kinesta
