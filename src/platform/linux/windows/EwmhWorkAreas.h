#pragma once

#include <optional>
#include <vector>

#include "platform/linux/windows/EwmhSnapshot.h"

namespace kinesta {

/// What is known of the room that docks keep for themselves on the current desktop.
struct EwmhWorkAreaSources {
    /// The whole screen, which holds all monitors.
    WindowRectangle screen;
    /// At least one.
    std::vector<WindowRectangle> monitors;
    /// What the window manager leaves of the whole screen (_NET_WORKAREA), if it says so.
    std::optional<WindowRectangle> screenWorkArea;
    /// What the desktop leaves of each monitor, in its own order, if it says so.
    std::vector<WindowRectangle> monitorWorkAreas;
    /// The windows of all desktops, docks among them.
    const std::vector<EwmhWindow>& windows;
    std::uint32_t currentDesktop = 0;
};

/// The monitors with what is left of each for windows. Never empty areas: what cannot be true is left out of account.
std::vector<EwmhMonitor> ewmhWorkAreas(const EwmhWorkAreaSources& sources);

}  // namespace kinesta
