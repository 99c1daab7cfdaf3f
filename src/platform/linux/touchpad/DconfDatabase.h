#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// The string that a dconf database (the bytes of "~/.config/dconf/user") holds under a key like
/// "/org/gnome/desktop/interface/gtk-theme"; nothing if it holds none, or if the bytes are no such database.
///
/// Reading the file takes neither a bus nor the desktop's libraries, which would double the memory of an idle daemon.
std::optional<std::string> dconfString(std::string_view database, std::string_view key);

}  // namespace kinesta
