#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <vector>

#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The rectangle in the four items of a property from `first` on.
WindowRectangle ewmhRectangleAt(const std::vector<std::uint32_t>& items, std::size_t first);

/// The bounds of the monitors, from the answer to a request already sent.
std::vector<WindowRectangle> ewmhMonitorBounds(X11Connection& connection, xcb_randr_get_monitors_cookie_t cookie,
                                               Deadline deadline);

/// Requests the atom of the property that ewmhMonitorWorkAreas() reads.
xcb_intern_atom_cookie_t requestMonitorWorkAreas(X11Connection& connection, std::uint32_t desktop);

/// The work area of each monitor, if the window manager publishes them. GNOME does, and its panel is not a window with
/// struts.
std::vector<WindowRectangle> ewmhMonitorWorkAreas(X11Connection& connection, xcb_intern_atom_cookie_t cookie,
                                                  Deadline deadline);

}  // namespace kinesta
