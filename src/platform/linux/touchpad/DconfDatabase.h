#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// The string that a dconf database (the bytes of "~/.config/dconf/user") holds under a key like
/// "/org/gnome/desktop/interface/gtk-theme"; nothing if there is none or the bytes are not a database.
///
/// Reads the file itself: libdconf would add 3.3 MB to the daemon, which takes 7.8 MB of the 10 MB that it may take.
std::optional<std::string> dconfString(std::string_view database, std::string_view key);

}  // namespace kinesta
