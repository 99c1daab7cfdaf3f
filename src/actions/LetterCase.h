#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kinesta {

/// `text` (UTF-8) with its capital letters made small, whatever the locale: the Latin letters up to U+017F and of
/// U+1E00–U+1EFF, Greek without its ancient accents, Cyrillic up to U+052F, and Armenian, which is what keyboards
/// type. Everything else, also U+0130 with its small form of two characters, stays as it is, and so do bytes that
/// are no UTF-8.
std::string lowerCasedLetters(std::string_view text);

/// How many characters (code points) UTF-8 text has.
std::size_t characterCount(std::string_view text);

}  // namespace kinesta
