#pragma once

#include <string>
#include <string_view>

#include "actions/HomeFolders.h"

namespace kinesta {

/// `path` with a leading "~" or "~name" replaced by that user's home folder; as it is if it has none or nobody knows
/// the user.
std::string expandingTilde(std::string_view path, const HomeFolders& homes);

/// `path` without ".", "..", repeated and trailing slashes, by its text alone: links are not followed. ".." at the
/// root is dropped; at the start of a path that does not begin with "/" it stays. Nothing left becomes ".".
std::string standardizedPath(std::string_view path);

}  // namespace kinesta
