#pragma once

#include <string_view>

namespace kinesta {

/// Whether `text` is a URL of the scheme http or https, in either case. A URL is what RFC 3986 allows, and the
/// characters beyond ASCII that RFC 3987 adds: blanks, quotes, angle brackets, backslashes, control characters or a
/// "%" without two hexadecimal digits make the text no URL.
bool isWebAddress(std::string_view text);

}  // namespace kinesta
