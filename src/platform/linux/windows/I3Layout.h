#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"

namespace kinesta {

/// The position that i3 or sway reports for a window.
struct I3Place {
    /// With title bar and borders.
    WindowRectangle frame;
    /// The window proper.
    WindowRectangle client;
    /// False while it has a place in the layout, where it can be neither moved nor resized by itself.
    bool floats = false;
};

/// The X windows in the answer to I3Question::tree; nothing if the answer is not a tree.
std::optional<std::map<EwmhWindowId, I3Place>> i3Places(const std::string& tree);

/// The work area of each monitor, without bars, from the answer to I3Question::workspaces.
std::vector<WindowRectangle> i3WorkAreas(const std::string& workspaces);

/// Whether every command succeeded, from the answer to I3Question::command.
bool i3Succeeded(const std::string& results);

}  // namespace kinesta
