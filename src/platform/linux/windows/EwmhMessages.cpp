#include "platform/linux/windows/EwmhMessages.h"

#include <algorithm>
#include <vector>

#include "platform/linux/x11/XcbEvent.h"

namespace kinesta {
namespace {

/// A window manager ends maximization in several steps and does not say which is the last. After this long without a
/// step, in seconds, it counts as finished.
constexpr Seconds kQuiet = 0.02;

}  // namespace

void EwmhMessages::close(EwmhWindowId window) {
    xcb_ewmh_request_close_window(m_connection.ewmh(), m_connection.screenNumber(), window, m_connection.serverTime(),
                                  XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
}

void EwmhMessages::place(const EwmhWindow& window, const WindowRectangle& frame) {
    constexpr auto kMove = XCB_EWMH_MOVERESIZE_WINDOW_X | XCB_EWMH_MOVERESIZE_WINDOW_Y;
    constexpr auto kMoveAndResize = kMove | XCB_EWMH_MOVERESIZE_WINDOW_WIDTH | XCB_EWMH_MOVERESIZE_WINDOW_HEIGHT;
    const bool keepsSize = frame.size() == window.frame.size();
    const WindowSize client = (frame - window.frameInsets).size();
    // With static gravity the position is that of the window proper, otherwise that of the outer corner including
    // shadows. The size is always that of the window proper.
    // Use the window's own gravity: openbox 3.6 stores positions in it, and after a move with another gravity the
    // window is off by its title bar at the end of the next maximization. Static gravity for all windows would put them
    // off by a border that they were created with and no longer have.
    const WindowRectangle place = window.hasStaticGravity ? frame - window.frameInsets : frame + window.shadow;
    const auto gravity = window.hasStaticGravity ? XCB_GRAVITY_STATIC : XCB_GRAVITY_NORTH_WEST;
    xcb_ewmh_request_moveresize_window(
        m_connection.ewmh(), m_connection.screenNumber(), window.id, gravity, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
        static_cast<xcb_ewmh_moveresize_window_opt_flags_t>(keepsSize ? kMove : kMoveAndResize),
        static_cast<std::uint32_t>(place.x), static_cast<std::uint32_t>(place.y),
        static_cast<std::uint32_t>(client.width), static_cast<std::uint32_t>(client.height));
}

void EwmhMessages::setFullscreen(EwmhWindowId window, bool isFullscreen) {
    xcb_ewmh_request_change_wm_state(m_connection.ewmh(), m_connection.screenNumber(), window,
                                     isFullscreen ? XCB_EWMH_WM_STATE_ADD : XCB_EWMH_WM_STATE_REMOVE,
                                     m_connection.atoms()._NET_WM_STATE_FULLSCREEN, XCB_ATOM_NONE,
                                     XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
}

void EwmhMessages::setMaximized(EwmhWindowId window, bool isHorizontal, bool isVertical, bool isMaximized) {
    if (!isHorizontal && !isVertical)
        return;
    const auto& atoms = m_connection.atoms();
    const xcb_atom_t vertical = isVertical ? atoms._NET_WM_STATE_MAXIMIZED_VERT : xcb_atom_t{XCB_ATOM_NONE};
    // Both in one message: one step for the window manager, and no flicker.
    xcb_ewmh_request_change_wm_state(m_connection.ewmh(), m_connection.screenNumber(), window,
                                     isMaximized ? XCB_EWMH_WM_STATE_ADD : XCB_EWMH_WM_STATE_REMOVE,
                                     isHorizontal ? atoms._NET_WM_STATE_MAXIMIZED_HORZ : vertical,
                                     isHorizontal ? vertical : xcb_atom_t{XCB_ATOM_NONE},
                                     XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
}

void EwmhMessages::raise(EwmhWindowId window) {
    // Placing it right below another window would be more exact, but openbox 3.6 then puts it at the bottom.
    xcb_ewmh_request_restack_window(m_connection.ewmh(), m_connection.screenNumber(), window, XCB_WINDOW_NONE,
                                    XCB_STACK_MODE_ABOVE);
}

void EwmhMessages::setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record) {
    if (record.empty())
        xcb_delete_property(m_connection.xcb(), window, m_connection.tilingRecord());
    else
        xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, window, m_connection.tilingRecord(),
                            XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(record.size()), record.data());
}

void EwmhMessages::restore(std::span<const EwmhWindow> windows, Deadline deadline) {
    std::vector<EwmhWindowId> waitingFor;
    for (const auto& window : windows) {
        if (!window.isZoomed())
            continue;
        waitingFor.push_back(window.id);
        watch(window.id, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        if (window.isFullscreen)
            setFullscreen(window.id, false);
        setMaximized(window.id, window.isMaximizedHorizontally, window.isMaximizedVertically, false);
    }
    const auto watched = waitingFor;
    const auto& atoms = m_connection.atoms();
    const auto isStep = [&](const xcb_generic_event_t& event) {
        const auto type = event.response_type & 0x7F;
        if (type == XCB_DESTROY_NOTIFY)
            std::erase(waitingFor, eventAs<xcb_destroy_notify_event_t>(event).window);
        if (type == XCB_CONFIGURE_NOTIFY || type == XCB_DESTROY_NOTIFY)
            return true;
        if (type != XCB_PROPERTY_NOTIFY)
            return false;
        const auto& change = eventAs<xcb_property_notify_event_t>(event);
        if (change.atom == atoms._NET_WM_STATE)
            std::erase(waitingFor, change.window);
        // Shadows vanish with maximization and return a moment after it ends.
        return change.atom == atoms._NET_WM_STATE || change.atom == atoms._NET_FRAME_EXTENTS ||
               change.atom == m_connection.gtkFrameExtents();
    };
    while (!watched.empty()) {
        const Deadline quiet = deadlineIn(kQuiet);
        if (!m_connection.awaitEvent(isStep, waitingFor.empty() ? std::min(quiet, deadline) : deadline))
            break;
    }
    for (const EwmhWindowId window : watched)
        watch(window, XCB_EVENT_MASK_NO_EVENT);
}

void EwmhMessages::watch(EwmhWindowId window, std::uint32_t events) {
    xcb_change_window_attributes(m_connection.xcb(), window, XCB_CW_EVENT_MASK, &events);
}

}  // namespace kinesta
