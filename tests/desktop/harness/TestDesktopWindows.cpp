#include <gtest/gtest.h>

#include <algorithm>

#include "desktop/harness/TestDesktop.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {

xcb_window_t TestDesktop::root() const { return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root; }

xcb_atom_t TestDesktop::atom(const std::string& name) const {
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> TestDesktop::property(xcb_window_t window, const std::string& name) const {
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1000);
    const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

bool TestDesktop::hasState(xcb_window_t window, const std::string& state) const {
    const auto states = property(window, "_NET_WM_STATE");
    return std::ranges::find(states, atom(state)) != states.end();
}

bool TestDesktop::isManaged(xcb_window_t window) const {
    const auto all = stacking();
    return std::ranges::find(all, window) != all.end();
}

xcb_window_t TestDesktop::active() const {
    const auto windows = property(root(), "_NET_ACTIVE_WINDOW");
    return windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows[0];
}

xcb_window_t TestDesktop::awaitWindowOf(pid_t process, xcb_window_t other) const {
    xcb_window_t found = XCB_WINDOW_NONE;
    const std::vector<std::uint32_t> wanted{static_cast<std::uint32_t>(process)};
    const auto isThere = [&] {
        found = active();
        return found != XCB_WINDOW_NONE && found != other && property(found, "_NET_WM_PID") == wanted &&
               isManaged(found);
    };
    return eventually(isThere) ? found : xcb_window_t{XCB_WINDOW_NONE};
}

void TestDesktop::request(xcb_window_t window, const std::string& message,
                          const std::vector<std::uint32_t>& numbers) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::ranges::copy(numbers, event.data.data32);
    xcb_send_event(m_connection, 0, root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection);
}

void TestDesktop::activate(xcb_window_t window) const {
    request(window, "_NET_ACTIVE_WINDOW", {2});
    EXPECT_TRUE(eventually([&] { return active() == window; }));
}

void TestDesktop::addState(xcb_window_t window, const std::string& state, const std::string& second) const {
    constexpr std::uint32_t kAdd = 1;
    const auto before = frame(window);
    request(window, "_NET_WM_STATE", {kAdd, atom(state), second.empty() ? 0 : atom(second), 2});
    // The frame changes after the state.
    EXPECT_TRUE(eventually([&] { return hasState(window, state) && !(frame(window) == before); })) << state;
}

void TestDesktop::minimize(xcb_window_t window) const {
    constexpr std::uint32_t kIconic = 3;
    request(window, "WM_CHANGE_STATE", {kIconic});
    EXPECT_TRUE(eventually([&] { return hasState(window, "_NET_WM_STATE_HIDDEN") && active() != window; }));
}

void TestDesktop::pretendActive(xcb_window_t window) const {
    // Repeated, because openbox may still be busy and name another window.
    EXPECT_TRUE(eventually([&] {
        if (active() == window)
            return true;
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW,
                            32, 1, &window);
        return false;
    }));
}

void TestDesktop::letWindowManagerCatchUp(xcb_window_t window) const {
    constexpr std::uint32_t kToggle = 2;
    const std::string state = "_NET_WM_STATE_SKIP_PAGER";  // harmless
    const bool before = hasState(window, state);
    request(window, "_NET_WM_STATE", {kToggle, atom(state), 0, 2});
    EXPECT_TRUE(eventually([&] { return hasState(window, state) != before; }));
}

WindowRectangle TestDesktop::frame(xcb_window_t window) const {
    for (;;) {
        const XcbPointer<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        if (!tree || tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE)
            return geometry(window);
        window = tree->parent;
    }
}

WindowRectangle TestDesktop::client(xcb_window_t window) const {
    WindowRectangle result = geometry(window);
    const XcbPointer<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, root(), 0, 0), nullptr));
    if (origin)
        result.x = origin->dst_x, result.y = origin->dst_y;
    return result;
}

WindowRectangle TestDesktop::geometry(xcb_window_t window) const {
    const XcbPointer<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    if (!reply)
        return {};
    return {reply->x, reply->y, reply->width + 2 * reply->border_width, reply->height + 2 * reply->border_width};
}

}  // namespace kinesta::testing
