#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <vector>

#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The four numbers of a property from `first` on.
WindowRectangle ewmhRectangleAt(const std::vector<std::uint32_t>& items, std::size_t first);

/// Where the monitors are, from an answer that is on its way.
std::vector<WindowRectangle> ewmhMonitorBounds(X11Connection& connection, xcb_randr_get_monitors_cookie_t cookie,
                                               Deadline deadline);

/// Asks for the name of the property of ewmhMonitorWorkAreas().
xcb_intern_atom_cookie_t requestMonitorWorkAreas(X11Connection& connection, std::uint32_t desktop);

/// What is left of each monitor, if the window manager says so. GNOME's does: its panel is no window with struts.
std::vector<WindowRectangle> ewmhMonitorWorkAreas(X11Connection& connection, xcb_intern_atom_cookie_t cookie,
                                                  Deadline deadline);

}  // namespace kinesta
