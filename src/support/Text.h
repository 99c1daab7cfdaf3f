#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// `text` (UTF-8) without white space and line breaks at both ends: Unicode's space separators, the tab,
/// U+000A–U+000D, U+0085, U+2028 and U+2029.
std::string_view trimmed(std::string_view text);

/// `text` with A–Z in lower case. All other bytes, and so non-ASCII UTF-8, stay unchanged.
std::string lowerCased(std::string_view text);

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view bytes);

/// Appends a code point as UTF-8. It must be at most U+10FFFF and not a surrogate.
void appendUtf8(std::string& text, std::uint32_t codePoint);

/// The double nearest to a decimal number in any locale: digits with an optional "-", fraction and exponent, and
/// nothing else. Nothing if the number is out of range.
std::optional<double> parsedNumber(std::string_view text);

/// The shortest decimal text that reads back as exactly `value` in any locale: "0.1", "250", "1e-07". For a finite
/// number this is also a JSON number.
std::string numberText(double value);

/// Appends numberText(value) to `text`.
void appendNumber(std::string& text, double value);

}  // namespace kinesta
