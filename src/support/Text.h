#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kinesta {

/// `text` (UTF-8) without the white space and line breaks at its ends: Unicode's space separators, the tab, and
/// U+000A–U+000D, U+0085, U+2028, U+2029.
std::string_view trimmed(std::string_view text);

/// `text` with A–Z made lower case; every other byte, so all of non-ASCII UTF-8, as it is.
std::string lowerCased(std::string_view text);

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing beyond U+10FFFF.
bool isUtf8(std::string_view bytes);

/// Appends a code point, at most U+10FFFF and no surrogate, to `text` as UTF-8.
void appendUtf8(std::string& text, std::uint32_t codePoint);

}  // namespace kinesta
