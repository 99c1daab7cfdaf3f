#include "platform/linux/launching/DesktopFile.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <utility>

#include "support/Text.h"

namespace kinesta {
namespace {

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

}  // namespace

std::optional<DesktopFile> DesktopFile::read(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        return std::nullopt;
    DesktopFile result;
    bool isInGroup = false;
    for (std::string line; std::getline(file, line);) {
        const std::string_view text = trimmed(line);
        if (text.starts_with('['))
            isInGroup = text == "[Desktop Entry]";
        const auto equals = text.find('=');
        if (!isInGroup || text.starts_with('#') || equals == std::string_view::npos)
            continue;
        result.m_keys.emplace(trimmed(text.substr(0, equals)), unescaped(trimmed(text.substr(equals + 1))));
    }
    return result;
}

std::string DesktopFile::value(std::string_view key) const {
    const auto found = m_keys.find(key);
    return found == m_keys.end() ? std::string() : found->second;
}

std::string DesktopFile::localizedValue(const std::string& key, std::string_view locale) const {
    const auto at = locale.find('@');
    const std::string modifier(at == std::string_view::npos ? "" : locale.substr(at));
    const std::string country(locale.substr(0, std::min(at, locale.find('.'))));
    const std::string language = country.substr(0, country.find('_'));
    for (const std::string& candidate : {country + modifier, country, language + modifier, language})
        if (const auto found = m_keys.find(key + "[" + candidate + "]"); found != m_keys.end())
            return found->second;
    return value(key);
}

std::string DesktopFile::messageLocale() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(name); value != nullptr && value[0] != '\0')
            return value;
    return "C";
}

std::optional<std::vector<std::string>> DesktopFile::words(std::string_view commandLine) {
    std::vector<std::string> result;
    std::string word;
    bool isInWord = false;
    char quote = 0;
    for (std::size_t i = 0; i < commandLine.size(); ++i) {
        const char c = commandLine[i];
        const bool hasNext = i + 1 < commandLine.size();
        if (quote == 0 && (c == ' ' || c == '\t' || c == '\n')) {
            if (isInWord)
                result.push_back(std::exchange(word, {}));
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
                  (quote == '"' && std::string_view("\"`$\\").find(commandLine[i + 1]) != std::string_view::npos)))
            word += commandLine[++i];
        else
            word += c;
    }
    if (quote != 0)
        return std::nullopt;
    if (isInWord)
        result.push_back(word);
    return result;
}

std::string DesktopFile::quoted(std::string_view word) {
    const bool isPlain = word.find_first_of(" \t\n\"'\\><~|&;$*?#()`") == std::string_view::npos && !word.empty();
    std::string result;
    for (const char c : word) {
        // A backslash is doubled once for the quotes and once more for the value in the file.
        if (c == '\\')
            result += "\\\\\\\\";
        else if (c == '"' || c == '`' || c == '$')
            result += std::string("\\\\") + c;
        else if (c == '\n')
            result += "\\n";
        else if (c == '%')
            result += "%%";
        else
            result += c;
    }
    return isPlain ? result : '"' + result + '"';
}

}  // namespace kinesta
