#include "actions/OpenTarget.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "support/Text.h"

namespace kinesta {
namespace {

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isHexadecimalDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool isSchemeCharacter(char c) { return isLetter(c) || isDigit(c) || c == '+' || c == '-' || c == '.'; }

bool isUrlCharacter(char c) {
    constexpr std::string_view kPunctuation = "-._~:/?#[]@!$&'()*+,;=";
    return isLetter(c) || isDigit(c) || static_cast<unsigned char>(c) >= 0x80U ||
           kPunctuation.find(c) != std::string_view::npos;
}

bool isUrlText(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            if (text.size() - i < 3 || !isHexadecimalDigit(text[i + 1]) || !isHexadecimalDigit(text[i + 2]))
                return false;
            i += 2;
        } else if (!isUrlCharacter(text[i])) {
            return false;
        }
    }
    return true;
}

std::optional<std::string_view> urlScheme(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon == 0)
        return std::nullopt;
    const std::string_view scheme = text.substr(0, colon);
    if (!isLetter(scheme.front()) || !std::all_of(scheme.begin(), scheme.end(), isSchemeCharacter))
        return std::nullopt;
    return scheme;
}

}  // namespace

std::string expandingTilde(std::string_view path, const HomeFolders& homes) {
    if (!path.starts_with('~'))
        return std::string(path);
    const std::size_t nameEnd = std::min(path.find('/'), path.size());
    auto home = homes.homeFolder(std::string(path.substr(1, nameEnd - 1)));
    if (!home)
        return std::string(path);
    const std::string_view rest = path.substr(nameEnd);
    // The home folder may be "/".
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

bool isWebAddress(std::string_view text) {
    const auto scheme = urlScheme(text);
    if (!scheme || !isUrlText(text.substr(scheme->size())))
        return false;
    const std::string lowered = lowerCased(*scheme);
    return lowered == "http" || lowered == "https";
}

std::string webHost(std::string_view text) {
    if (!isWebAddress(text))
        return {};
    text.remove_prefix(text.find(':') + 1);
    if (!text.starts_with("//"))
        return {};
    text.remove_prefix(2);
    text = text.substr(0, text.find_first_of("/?#"));
    if (const auto at = text.rfind('@'); at != std::string_view::npos)
        text.remove_prefix(at + 1);
    // The colons of an IPv6 address stand in brackets.
    if (const auto port = text.rfind(':');
        port != std::string_view::npos && text.find(']', port) == std::string_view::npos)
        text = text.substr(0, port);
    return std::string(text);
}

bool isSecureWebAddress(std::string_view text) {
    return lowerCased(text.substr(0, 6)) == "https:" && !webHost(text).empty();
}

}  // namespace kinesta
