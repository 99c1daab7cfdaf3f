#pragma once

#include <vector>

#include "actions/AccessibilityPermission.h"
#include "actions/KeyboardLayout.h"
#include "app/DesktopFindings.h"
#include "support/SystemVersion.h"

namespace kinesta {

/// What macOS lets this program do, one finding for each capability, in their order.
std::vector<DesktopFinding> macFindings(AccessibilityPermission& permission, KeyboardLayout& layout,
                                        const SystemVersion& version);

/// The first macOS with the menu commands that tile windows.
inline constexpr int kFirstVersionThatTiles = 15;

}  // namespace kinesta
