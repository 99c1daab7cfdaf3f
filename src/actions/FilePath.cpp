#include "actions/FilePath.h"

#include <algorithm>
#include <vector>

namespace kinesta {

std::string expandingTilde(std::string_view path, const HomeFolders& homes) {
    if (!path.starts_with('~'))
        return std::string(path);
    const std::size_t nameEnd = std::min(path.find('/'), path.size());
    auto home = homes.homeFolder(std::string(path.substr(1, nameEnd - 1)));
    if (!home)
        return std::string(path);
    const std::string_view rest = path.substr(nameEnd);
    // The home folder of some accounts is "/".
    if (!rest.empty() && home->ends_with('/'))
        home->pop_back();
    return home->append(rest);
}

std::string standardizedPath(std::string_view path) {
    const bool isAbsolute = path.starts_with('/');
    std::vector<std::string_view> components;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component.empty() || component == ".")
            continue;
        const bool isParent = component == "..";
        if (isParent && !components.empty() && components.back() != "..")
            components.pop_back();
        else if (!isParent || !isAbsolute)
            components.push_back(component);
    }

    std::string result = isAbsolute ? "/" : "";
    for (const std::string_view component : components) {
        if (!result.empty() && !result.ends_with('/'))
            result += '/';
        result += component;
    }
    return result.empty() ? "." : result;
}

}  // namespace kinesta
