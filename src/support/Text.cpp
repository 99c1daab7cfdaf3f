#include "support/Text.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>

namespace kinesta {
namespace {

// White space and line breaks, in UTF-8.
constexpr std::array<std::string_view, 25> kBlanks{" ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085",
                                                   "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004",
                                                   "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u2028",
                                                   "\u2029", "\u202F", "\u205F", "\u3000"};

}  // namespace

std::string_view trimmed(std::string_view text) {
    for (bool found = true; found;) {
        found = false;
        for (const std::string_view blank : kBlanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                found = true;
            }
            if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                found = true;
            }
        }
    }
    return text;
}

std::string lowerCased(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return result;
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i++]);
        if (lead < 0x80)
            continue;
        const int continuations = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
        if (continuations == 0 || bytes.size() - i < static_cast<std::size_t>(continuations))
            return false;
        // The range of the first continuation byte excludes overlong forms, surrogates and code points too large.
        unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
        unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
        for (int left = continuations; left > 0; --left) {
            const auto byte = static_cast<unsigned char>(bytes[i++]);
            if (byte < lowest || byte > highest)
                return false;
            lowest = 0x80;
            highest = 0xBF;
        }
    }
    return true;
}

void appendUtf8(std::string& text, std::uint32_t codePoint) {
    const auto put = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12);
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | codePoint >> 18);
        put(0x80 | (codePoint >> 12 & 0x3F));
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}

std::optional<double> parsedNumber(std::string_view text) {
    if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos || text.starts_with('+'))
        return std::nullopt;  // also "inf", which some of the functions below would take
#if defined(__cpp_lib_to_chars)
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
#else  // this libc++ has no from_chars for doubles, and its streams cut long numbers
    std::string local;
    for (const char c : text)
        local += c == '.' ? std::string(std::localeconv()->decimal_point) : std::string(1, c);
    errno = 0;
    char* end = nullptr;
    const double value = std::strtod(local.c_str(), &end);
    const bool isOutOfRange = errno == ERANGE && (value == 0 || std::isinf(value));  // not if it is only very small
    if (local.empty() || end != local.c_str() + local.size() || isOutOfRange)
        return std::nullopt;
    return value;
#endif
}

std::string numberText(double value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

void appendNumber(std::string& text, double value) {
    std::array<char, 32> digits{};  // the longest, -1.7976931348623157e+308, takes 24
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    text.append(digits.data(), end);
}

}  // namespace kinesta
