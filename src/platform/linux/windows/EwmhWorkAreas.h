#pragma once

#include <optional>
#include <vector>

#include "platform/linux/windows/EwmhSnapshot.h"

namespace kinesta {

/// What is known about the space that docks reserve on the current desktop.
struct EwmhWorkAreaSources {
    /// The whole screen, which contains all monitors.
    WindowRectangle screen;
    /// At least one.
    std::vector<WindowRectangle> monitors;
    /// The work area of the whole screen (_NET_WORKAREA), if the window manager publishes it.
    std::optional<WindowRectangle> screenWorkArea;
    /// The work area of each monitor, in any order, if the desktop publishes them.
    std::vector<WindowRectangle> monitorWorkAreas;
    /// The windows of all desktops, including docks.
    const std::vector<EwmhWindow>& windows;
    std::uint32_t currentDesktop = 0;
};

/// The monitors with their work areas. An area is never empty: values that would make it empty are ignored.
std::vector<EwmhMonitor> ewmhWorkAreas(const EwmhWorkAreaSources& sources);

}  // namespace kinesta
