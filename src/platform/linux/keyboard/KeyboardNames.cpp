#include "platform/linux/keyboard/KeyboardNames.h"

#include <fstream>
#include <string_view>

#include "support/Text.h"

namespace kinesta {
namespace {

std::string unquoted(std::string_view value) {
    value = trimmed(value);
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        value = value.substr(1, value.size() - 2);
    return std::string(value);
}

}  // namespace

KeyboardNames KeyboardNames::read(const std::string& path) {
    KeyboardNames names;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const auto equals = line.find('=');
        if (equals == std::string::npos)
            continue;
        const std::string_view name = trimmed(std::string_view(line).substr(0, equals));
        std::string value = unquoted(std::string_view(line).substr(equals + 1));
        if (name == "XKBMODEL")
            names.model = std::move(value);
        else if (name == "XKBLAYOUT")
            names.layout = std::move(value);
        else if (name == "XKBVARIANT")
            names.variant = std::move(value);
        else if (name == "XKBOPTIONS")
            names.options = std::move(value);
    }
    return names;
}

}  // namespace kinesta
