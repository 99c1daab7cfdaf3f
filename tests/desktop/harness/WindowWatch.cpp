#include "desktop/harness/WindowWatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {

WindowWatch::WindowWatch(const TestDesktop& desktop)
    : m_desktop(desktop), m_connection(xcb_connect(desktop.display().c_str(), nullptr)) {}

WindowWatch::~WindowWatch() { xcb_disconnect(m_connection); }

bool WindowWatch::await(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (true) {
        // What happens from here on wakes us, so nothing that comes after the question is missed.
        watchAll();
        while (XcbPointer<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
        }
        if (condition())
            return true;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !waitForInput(xcb_get_file_descriptor(m_connection), left))
            return false;
    }
}

bool WindowWatch::isManaged(xcb_window_t window) const {
    const auto all = stacking();
    return std::find(all.begin(), all.end(), window) != all.end();
}

xcb_window_t WindowWatch::awaitWindowOf(pid_t process, xcb_window_t besides) {
    xcb_window_t found = XCB_WINDOW_NONE;
    await([&] {
        for (const xcb_window_t window : stacking())
            if (window != besides && m_desktop.property(window, "_NET_WM_PID") == static_cast<std::uint32_t>(process) &&
                window == active())
                found = window;
        return found != XCB_WINDOW_NONE;
    });
    return found;
}

bool WindowWatch::awaitActive(xcb_window_t window) {
    return await([&] { return active() == window; });
}

void WindowWatch::activate(xcb_window_t window) {
    tell(window, "_NET_ACTIVE_WINDOW", {2});
    EXPECT_TRUE(awaitActive(window));
}

void WindowWatch::pretendActive(xcb_window_t window) {
    // As often as openbox, which may still be busy, says something else.
    EXPECT_TRUE(await([&] {
        if (active() == window)
            return true;
        xcb_change_property(m_desktop.connection(), XCB_PROP_MODE_REPLACE, m_desktop.root(),
                            m_desktop.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1, &window);
        xcb_flush(m_desktop.connection());
        return false;
    }));
}

void WindowWatch::tell(xcb_window_t window, const std::string& message, std::vector<std::uint32_t> numbers) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = m_desktop.atom(message);
    std::copy(numbers.begin(), numbers.end(), event.data.data32);
    xcb_send_event(m_desktop.connection(), 0, m_desktop.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(m_desktop.connection());
}

void WindowWatch::addState(xcb_window_t window, const std::string& state, const std::string& second) {
    constexpr std::uint32_t kAdd = 1;
    const xcb_atom_t secondAtom = second.empty() ? xcb_atom_t{XCB_ATOM_NONE} : m_desktop.atom(second);
    // The frame follows the state, and tells when it has.
    const auto before = frame(window);
    tell(window, "_NET_WM_STATE", {kAdd, m_desktop.atom(state), secondAtom, 2});
    EXPECT_TRUE(await([&] { return hasState(window, state) && !(frame(window) == before); })) << state;
}

bool WindowWatch::hasState(xcb_window_t window, const std::string& state) const {
    const auto states = windows(window, "_NET_WM_STATE");
    return std::find(states.begin(), states.end(), m_desktop.atom(state)) != states.end();
}

void WindowWatch::minimize(xcb_window_t window) {
    constexpr std::uint32_t kIconic = 3;
    tell(window, "WM_CHANGE_STATE", {kIconic});
    EXPECT_TRUE(await([&] { return hasState(window, "_NET_WM_STATE_HIDDEN") && active() != window; }));
}

void WindowWatch::letWindowManagerCatchUp(xcb_window_t window) {
    constexpr std::uint32_t kToggle = 2;
    const std::string state = "_NET_WM_STATE_SKIP_PAGER";
    const bool before = hasState(window, state);
    tell(window, "_NET_WM_STATE", {kToggle, m_desktop.atom(state), 0, 2});
    EXPECT_TRUE(await([&] { return hasState(window, state) != before; }));
}

WindowRectangle WindowWatch::frame(xcb_window_t window) const {
    xcb_window_t outermost = window;
    while (true) {
        const XcbPointer<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_desktop.connection(), xcb_query_tree(m_desktop.connection(), outermost), nullptr));
        if (!tree || tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE)
            return geometry(outermost);
        outermost = tree->parent;
    }
}

WindowRectangle WindowWatch::client(xcb_window_t window) const {
    WindowRectangle result = geometry(window);
    const XcbPointer<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        m_desktop.connection(), xcb_translate_coordinates(m_desktop.connection(), window, m_desktop.root(), 0, 0),
        nullptr));
    if (origin) {
        result.x = origin->dst_x;
        result.y = origin->dst_y;
    }
    return result;
}

std::vector<xcb_window_t> WindowWatch::windows(xcb_window_t window, const std::string& property) const {
    const auto cookie = xcb_get_property(m_desktop.connection(), 0, window, m_desktop.atom(property),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, 1000);
    const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_desktop.connection(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

WindowRectangle WindowWatch::geometry(xcb_window_t window) const {
    const XcbPointer<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(m_desktop.connection(), xcb_get_geometry(m_desktop.connection(), window), nullptr));
    if (!reply)
        return {};
    return {reply->x, reply->y, reply->width + 2 * reply->border_width, reply->height + 2 * reply->border_width};
}

void WindowWatch::watchAll() {
    const auto watch = [this](xcb_window_t window) {
        const std::uint32_t events =
            XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &events);
    };
    watch(m_desktop.root());
    for (const xcb_window_t window : stacking())
        watch(window);
    // Once this is answered the server watches.
    XcbPointer<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

}  // namespace kinesta::testing
