#pragma once

#include <string_view>

namespace kinesta {

/// The host of an address, without user and port; the address itself if it has none.
std::string_view hostOf(std::string_view address);

/// The last part of a path; the path itself if it consists of slashes.
std::string_view lastPart(std::string_view path);

/// "Terminal" for "/usr/share/applications/org.gnome.Terminal.desktop" and for "/Applications/Terminal.app".
std::string_view applicationName(std::string_view path);

}  // namespace kinesta
