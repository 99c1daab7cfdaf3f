#include "platform/linux/windows/EwmhMonitors.h"

#include <algorithm>
#include <string>

namespace kinesta {

WindowRectangle ewmhRectangleAt(const std::vector<std::uint32_t>& items, std::size_t first) {
    // No screen is larger, and the limit keeps later arithmetic from overflowing.
    const auto item = [&](std::size_t i) { return static_cast<int>(std::min<std::uint32_t>(items[first + i], 32767)); };
    return {item(0), item(1), item(2), item(3)};
}

std::vector<WindowRectangle> ewmhMonitorBounds(X11Connection& connection, xcb_randr_get_monitors_cookie_t cookie,
                                               Deadline deadline) {
    std::vector<WindowRectangle> monitors;
    const auto reply = connection.reply<xcb_randr_get_monitors_reply_t>(cookie, deadline);
    if (!reply)
        return monitors;
    for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        const WindowRectangle bounds{each.data->x, each.data->y, each.data->width, each.data->height};
        // Mirrored monitors count as one.
        if (!bounds.isEmpty() && std::find(monitors.begin(), monitors.end(), bounds) == monitors.end())
            monitors.push_back(bounds);
    }
    return monitors;
}

xcb_intern_atom_cookie_t requestMonitorWorkAreas(X11Connection& connection, std::uint32_t desktop) {
    const std::string name = "_GTK_WORKAREAS_D" + std::to_string(desktop);
    return xcb_intern_atom(connection.xcb(), 1, static_cast<std::uint16_t>(name.size()), name.c_str());
}

std::vector<WindowRectangle> ewmhMonitorWorkAreas(X11Connection& connection, xcb_intern_atom_cookie_t cookie,
                                                  Deadline deadline) {
    const auto atom = connection.reply<xcb_intern_atom_reply_t>(cookie, deadline);
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const auto numbers = connection.items(connection.requestProperty(connection.root(), atom->atom, XCB_ATOM_CARDINAL),
                                          XCB_ATOM_CARDINAL, deadline);
    std::vector<WindowRectangle> areas;
    for (std::size_t first = 0; numbers && first + 4 <= numbers->size(); first += 4)
        areas.push_back(ewmhRectangleAt(*numbers, first));
    return areas;
}

}  // namespace kinesta
