#pragma once

#include <string>

namespace kinesta {

/// Whether the session runs this desktop ("GNOME", "KDE") or one that is based on it.
bool isCurrentDesktop(const std::string& name);

/// Whether a folder in PATH has a program with this name.
bool isInSearchPath(const std::string& name);

}  // namespace kinesta
