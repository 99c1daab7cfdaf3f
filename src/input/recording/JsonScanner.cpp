#include "input/recording/JsonScanner.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "support/Text.h"

namespace kinesta {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

JsonScanner::Kind JsonScanner::kind() {
    skipSpace();
    switch (next()) {
        case '{':
            return Kind::object;
        case '[':
            return Kind::array;
        case '"':
            return Kind::string;
        case 't':
        case 'f':
            return Kind::boolean;
        case 'n':
            return Kind::null;
        default:
            return next() == '-' || isDigit(next()) ? Kind::number : Kind::none;
    }
}

bool JsonScanner::beginObject() {
    m_isFirst = true;
    return take('{');
}

std::optional<std::string_view> JsonScanner::nextKey() {
    skipSpace();
    if (next() == '}' && take('}')) {
        m_isFirst = false;
        return std::nullopt;
    }
    if (!m_isFirst && !take(','))
        return std::nullopt;
    m_isFirst = false;
    const auto key = string();
    if (!key || !take(':'))
        return std::nullopt;
    return key;
}

bool JsonScanner::beginArray() {
    m_isFirst = true;
    return take('[');
}

bool JsonScanner::nextElement() {
    skipSpace();
    if (next() == ']' && take(']')) {
        m_isFirst = false;
        return false;
    }
    if (!m_isFirst && !take(','))
        return false;
    m_isFirst = false;
    return kind() != Kind::none || fail("a value is missing");
}

std::optional<JsonNumber> JsonScanner::number() {
    skipSpace();
    const std::size_t begin = m_at;
    const auto takeDigits = [this] {
        if (!isDigit(next()))
            return fail("a number is malformed");
        while (isDigit(next()))
            ++m_at;
        return true;
    };
    if (next() == '-')
        ++m_at;
    const bool hasLeadingZero = next() == '0';
    const std::size_t firstDigit = m_at;
    if (!takeDigits())
        return std::nullopt;
    if (hasLeadingZero && m_at - firstDigit > 1) {
        fail("a number begins with a zero");
        return std::nullopt;
    }
    bool isWhole = true;
    if (next() == '.') {
        isWhole = false;
        ++m_at;
        if (!takeDigits())
            return std::nullopt;
    }
    if (next() == 'e' || next() == 'E') {
        isWhole = false;
        ++m_at;
        if (next() == '+' || next() == '-')
            ++m_at;
        if (!takeDigits())
            return std::nullopt;
    }
    const char* const first = m_text.data() + begin;
    const char* const last = m_text.data() + m_at;
    // Up to here every whole number is a double, and above it every double is whole: there a fraction as written counts
    // as no whole number.
    constexpr std::int64_t kExact = 9007199254740992;
    JsonNumber number;
    if (isWhole) {
        std::int64_t integer = 0;
        if (std::from_chars(first, last, integer).ec == std::errc())
            number.integer = integer;
        if (*first != '-' && number.integer && integer <= kExact) {  // "-0" is no integer's double
            number.value = static_cast<double>(integer);
            return number;
        }
    }
    const auto value = parsedNumber({first, last});
    if (!value) {
        fail("a number is out of range");
        return std::nullopt;
    }
    number.value = *value;
    if (!isWhole && number.value == std::trunc(number.value) && std::abs(number.value) <= static_cast<double>(kExact))
        number.integer = static_cast<std::int64_t>(number.value);
    return number;
}

std::optional<std::string_view> JsonScanner::string() {
    if (!take('"'))
        return std::nullopt;
    const std::size_t begin = m_at;
    std::size_t copied = begin;
    bool isEscaped = false;
    bool isAscii = true;
    m_unescaped.clear();
    while (m_at < m_text.size() && m_text[m_at] != '"') {
        const auto c = static_cast<unsigned char>(m_text[m_at]);
        if (c < 0x20) {
            fail("a text holds a control character");
            return std::nullopt;
        }
        if (c == '\\') {
            m_unescaped.append(m_text.substr(copied, m_at - copied));
            isEscaped = true;
            if (!unescape())
                return std::nullopt;
            copied = m_at;
        } else {
            isAscii &= c < 0x80;
            ++m_at;
        }
    }
    if (!isAscii && !isUtf8(m_text.substr(begin, m_at - begin))) {
        fail("a text is not UTF-8");
        return std::nullopt;
    }
    const std::string_view rest = m_text.substr(copied, m_at - copied);
    if (!take('"'))
        return std::nullopt;
    return isEscaped ? std::string_view(m_unescaped.append(rest)) : rest;
}

// One escape sequence, from its backslash on.
bool JsonScanner::unescape() {
    ++m_at;
    const char c = next();
    ++m_at;
    static constexpr std::string_view kLetters = "\"\\/bfnrt";
    static constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    if (const std::size_t index = kLetters.find(c); index != std::string_view::npos) {
        m_unescaped.push_back(kMeanings[index]);
        return true;
    }
    if (c != 'u')
        return fail("a text holds an unknown escape");
    auto codePoint = hexDigits();
    if (!codePoint)
        return false;
    if (*codePoint >= 0xD800 && *codePoint <= 0xDFFF) {
        if (*codePoint >= 0xDC00 || next() != '\\')
            return fail("a text holds half a surrogate pair");
        ++m_at;
        if (next() != 'u')
            return fail("a text holds half a surrogate pair");
        ++m_at;
        const auto low = hexDigits();
        if (!low)
            return false;
        if (*low < 0xDC00 || *low > 0xDFFF)
            return fail("a text holds half a surrogate pair");
        codePoint = 0x10000 + ((*codePoint - 0xD800) << 10) + (*low - 0xDC00);
    }
    appendUtf8(m_unescaped, *codePoint);
    return true;
}

std::optional<std::uint32_t> JsonScanner::hexDigits() {
    std::uint32_t value = 0;
    const std::string_view digits = m_text.substr(std::min(m_at, m_text.size()), 4);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc() || end != digits.data() + 4) {
        fail("a text holds an unknown escape");
        return std::nullopt;
    }
    m_at += 4;
    return value;
}

std::optional<bool> JsonScanner::boolean() {
    skipSpace();
    const bool value = next() == 't';
    if (!takeWord(value ? "true" : "false"))
        return std::nullopt;
    return value;
}

bool JsonScanner::skipValue(int depth) {
    if (depth == kMaximumDepth)
        return fail("values are nested too deeply");
    switch (kind()) {
        case Kind::object:
            beginObject();
            while (nextKey())
                if (!skipValue(depth + 1))
                    return false;
            break;
        case Kind::array:
            beginArray();
            while (nextElement())
                if (!skipValue(depth + 1))
                    return false;
            break;
        case Kind::string:
            string();
            break;
        case Kind::number:
            number();
            break;
        case Kind::boolean:
            boolean();
            break;
        case Kind::null:
            takeWord("null");
            break;
        case Kind::none:
            return fail("a value is missing");
    }
    return m_problem.empty();
}

bool JsonScanner::end() {
    skipSpace();
    return m_at >= m_text.size() ? m_problem.empty() : fail("something follows the object");
}

void JsonScanner::skipSpace() {
    while (m_at < m_text.size() &&
           (m_text[m_at] == ' ' || m_text[m_at] == '\t' || m_text[m_at] == '\r' || m_text[m_at] == '\n'))
        ++m_at;
}

bool JsonScanner::take(char expected) {
    skipSpace();
    if (m_at < m_text.size() && m_text[m_at] == expected) {
        ++m_at;
        return true;
    }
    switch (expected) {
        case '{':
            return fail("an object is missing");
        case '[':
            return fail("an array is missing");
        case '"':
            return fail("a text is missing");
        case ':':
            return fail("a colon is missing");
        default:
            return fail("a comma or a closing bracket is missing");
    }
}

bool JsonScanner::takeWord(std::string_view word) {
    if (m_text.substr(m_at, word.size()) != word)
        return fail("a value is malformed");
    m_at += word.size();
    return true;
}

// Skips the rest after the first problem, so that every later call fails too.
bool JsonScanner::fail(std::string_view problem) {
    if (m_problem.empty())
        m_problem = m_at >= m_text.size() ? "the line ends too early" : problem;
    m_at = m_text.size();
    return false;
}

}  // namespace kinesta
