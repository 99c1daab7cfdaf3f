#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"

namespace kinesta {

/// Where i3 or sway says that a window is.
struct I3Place {
    /// With its title bar and borders.
    WindowRectangle frame;
    /// The window proper.
    WindowRectangle client;
    /// False while it has a place in the layout: then it can be neither moved nor resized by itself.
    bool floats = false;
};

/// The X windows in the answer to I3Question::tree; nothing if it is none.
std::optional<std::map<EwmhWindowId, I3Place>> i3Places(const std::string& tree);

/// What bars leave of each monitor, from the answer to I3Question::workspaces.
std::vector<WindowRectangle> i3WorkAreas(const std::string& workspaces);

/// Whether every command was carried out, from the answer to I3Question::command.
bool i3Succeeded(const std::string& results);

}  // namespace kinesta
