#pragma once

#include <string>

namespace kinesta {

/// Whether the session is one of this desktop, or of one built upon it: "GNOME", "KDE".
bool isCurrentDesktop(const std::string& name);

}  // namespace kinesta
