#pragma once

#include <string>
#include <string_view>

#include "actions/HomeFolders.h"

namespace kinesta {

/// `path` with a leading "~" or "~name" replaced by that user's home folder. Unchanged if it has none or the user is
/// unknown.
std::string expandingTilde(std::string_view path, const HomeFolders& homes);

/// `path` without ".", "..", repeated and trailing slashes. Does not follow links. Drops ".." at the root, keeps it at
/// the start of a relative path. An empty result becomes ".".
std::string standardizedPath(std::string_view path);

/// Whether `text` is a URL with the scheme http or https, in either case. Accepts what RFC 3986 allows and the
/// non-ASCII characters of RFC 3987; rejects blanks, quotes, angle brackets, backslashes, control characters and a "%"
/// without two hexadecimal digits.
bool isWebAddress(std::string_view text);

/// The host of a web address as written, without user and port; empty if `text` is no web address or has no host.
std::string webHost(std::string_view text);

/// Whether `text` is a web address with the scheme https and a host.
bool isSecureWebAddress(std::string_view text);

}  // namespace kinesta
