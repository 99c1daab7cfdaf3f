#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <vector>

#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/x11/EwmhConnection.h"

namespace kinesta {

/// The four numbers of a property from `first` on.
WindowRectangle ewmhRectangleAt(const std::vector<std::uint32_t>& items, std::size_t first);

/// Where the monitors are, from an answer that is on its way.
std::vector<WindowRectangle> ewmhMonitorBounds(EwmhConnection& connection, xcb_randr_get_monitors_cookie_t cookie,
                                               EwmhConnection::Deadline deadline);

/// What is left of each monitor, if the window manager tells. GNOME's does, and its panel is no window that would tell
/// struts.
std::vector<WindowRectangle> ewmhMonitorWorkAreas(EwmhConnection& connection, std::uint32_t desktop,
                                                  EwmhConnection::Deadline deadline);

}  // namespace kinesta
