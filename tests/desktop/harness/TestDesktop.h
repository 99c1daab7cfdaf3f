#pragma once

#include <gtest/gtest.h>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {

constexpr WindowRectangle kWholeScreen{0, 0, 1280, 800};

/// The folder that an environment variable names.
inline std::filesystem::path folderOf(const char* variable) { return std::getenv(variable); }

/// A desktop for one test: an X server without a screen, a session bus, and on request a window manager. The
/// environment then names them. One at a time. Reads windows straight from the server, without the code under test.
class TestDesktop {
  public:
    enum Manager { noManager, openbox };

    explicit TestDesktop(Manager manager = noManager) {
        setenv("XDG_CURRENT_DESKTOP", "Test", 1);
        setenv("XDG_SESSION_TYPE", "x11", 1);
        // The server picks the number and prints it once it is ready, so two test programs never share a server.
        server.emplace("Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp -noreset");
        m_display = ":" + server->readLine().value();
        setenv("DISPLAY", m_display.c_str(), 1);
        m_connection = xcb_connect(m_display.c_str(), nullptr);
        setLayout("us");
        startSessionBus();
        if (manager == noManager)
            return;
        windowManager.emplace("openbox --sm-disable");
        letWindowManagerCatchUp();
    }
    TestDesktop(const TestDesktop&) = delete;
    TestDesktop& operator=(const TestDesktop&) = delete;
    ~TestDesktop() { stopServer(); }

    void stopServer() {
        windowManager.reset();
        if (m_connection != nullptr)
            xcb_disconnect(std::exchange(m_connection, nullptr));
        server.reset();
        setenv("DISPLAY", ":54321", 1);  // another server may have the old number by now
    }

    void startSessionBus() {
        // The bus can start the accessibility bus and none of the other installed services.
        const auto folder = folderOf("XDG_RUNTIME_DIR") / "dbus";
        if (std::filesystem::create_directory(folder)) {
            std::filesystem::create_symlink("/usr/share/dbus-1/services/org.a11y.Bus.service",
                                            folder / "org.a11y.Bus.service");
            std::ofstream(folder / "bus.conf")
                << "<busconfig><type>session</type><listen>unix:dir=" << folder.string() << "</listen><servicedir>"
                << folder.string() << "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
                << "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>\n";
        }
        sessionBus.emplace("dbus-daemon --nofork --print-address=1 --config-file=" + (folder / "bus.conf").string());
        setenv("DBUS_SESSION_BUS_ADDRESS", sessionBus->readLine().value().c_str(), 1);
    }

    /// Switches the keyboard layout, such as to "fr" or "us,fr".
    static void setLayout(const std::string& layout) {
        EXPECT_TRUE(run("setxkbmap -rules evdev -model pc105 -option '' -layout " + layout));
    }

    const std::string& display() const { return m_display; }
    /// A connection for the test, which lives as long as the server.
    xcb_connection_t* connection() const { return m_connection; }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root; }
    xcb_atom_t atom(const std::string& name) const {
        const auto size = static_cast<std::uint16_t>(name.size());
        const auto reply = answer(xcb_intern_atom_reply, xcb_intern_atom(m_connection, 0, size, name.c_str()));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    /// The items of a 32-bit property.
    std::vector<std::uint32_t> property(xcb_window_t window, const std::string& name) const {
        const auto reply = answer(xcb_get_property_reply, xcb_get_property(m_connection, 0, window, atom(name),
                                                                           XCB_GET_PROPERTY_TYPE_ANY, 0, 1000));
        if (!reply || reply->format != 32)
            return {};
        const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {first, first + reply->value_len};
    }
    bool has(xcb_window_t window, const std::string& name, std::uint32_t item) const {
        const auto items = property(window, name);
        return std::ranges::find(items, item) != items.end();
    }
    bool hasState(xcb_window_t window, const std::string& state) const {
        return has(window, "_NET_WM_STATE", atom(state));
    }
    /// Sets a 32-bit property and returns once the server has it.
    void set(xcb_window_t window, const std::string& name, xcb_atom_t type,
             const std::vector<std::int64_t>& items) const {
        const std::vector<std::uint32_t> words(items.begin(), items.end());
        const auto count = static_cast<std::uint32_t>(words.size());
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), type, 32, count, words.data());
        atom(name);
    }

    /// The managed windows, the lowest first.
    std::vector<xcb_window_t> stacking() const { return property(root(), "_NET_CLIENT_LIST_STACKING"); }
    bool isManaged(xcb_window_t window) const { return has(root(), "_NET_CLIENT_LIST_STACKING", window); }
    xcb_window_t active() const {
        const auto windows = property(root(), "_NET_ACTIVE_WINDOW");
        return windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows[0];
    }
    bool becomesActive(xcb_window_t window) const {
        return eventually([&] { return active() == window; });
    }
    /// Waits until a window of this program besides `other` is active.
    xcb_window_t awaitWindowOf(const ChildProcess& program, xcb_window_t other = XCB_WINDOW_NONE) const {
        xcb_window_t found = XCB_WINDOW_NONE;
        EXPECT_TRUE(eventually([&] {
            found = active();
            return found != XCB_WINDOW_NONE && found != other && isManaged(found) &&
                   has(found, "_NET_WM_PID", static_cast<std::uint32_t>(program.pid()));
        }));
        return found;
    }

    /// The window on the screen with this title, managed or not; none if there is none.
    xcb_window_t visible(const std::string& title) const {
        xcb_grab_server(m_connection);  // so that no window comes, goes or moves into a frame meanwhile
        const xcb_window_t found = visibleBelow(root(), title);
        xcb_ungrab_server(m_connection);
        xcb_flush(m_connection);
        return found;
    }

    /// Sends a message to the window manager.
    void request(xcb_window_t window, const std::string& message, const std::vector<std::uint32_t>& numbers) const {
        xcb_ewmh_send_client_message(m_connection, window, root(), atom(message),
                                     static_cast<std::uint32_t>(4 * numbers.size()), numbers.data());
        xcb_flush(m_connection);
    }
    /// Each waits until the request has been carried out.
    void activate(xcb_window_t window) const {
        request(window, "_NET_ACTIVE_WINDOW", {2});
        EXPECT_TRUE(becomesActive(window));
    }
    void addState(xcb_window_t window, const std::string& state, const std::string& second = {}) const {
        constexpr std::uint32_t kAdd = 1;
        if (hasState(window, state))
            return;
        const auto before = frame(window);
        request(window, "_NET_WM_STATE", {kAdd, atom(state), second.empty() ? 0 : atom(second), 2});
        // The frame changes after the state.
        EXPECT_TRUE(eventually([&] { return hasState(window, state) && !(frame(window) == before); })) << state;
    }
    void minimize(xcb_window_t window) const {
        constexpr std::uint32_t kIconic = 3;
        request(window, "WM_CHANGE_STATE", {kIconic});
        EXPECT_TRUE(eventually([&] { return hasState(window, "_NET_WM_STATE_HIDDEN") && active() != window; }));
    }
    /// Names a window as the active one although the window manager did not activate it.
    void pretendActive(xcb_window_t window) const {
        // Repeated, because openbox may still be busy and name another window.
        EXPECT_TRUE(eventually([&] {
            const bool isActive = active() == window;
            if (!isActive)
                set(root(), "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, {window});
            return isActive;
        }));
    }
    /// Returns once the window manager has started and carried out all earlier requests.
    void letWindowManagerCatchUp() const {
        const std::string name = "_NET_NUMBER_OF_DESKTOPS";  // any change will do; openbox itself starts with 4
        const std::vector<std::uint32_t> other{property(root(), name) == std::vector{5U} ? 4U : 5U};
        EXPECT_TRUE(eventually([&] {
            request(root(), name, other);  // again, because it ignores requests while it starts
            return property(root(), name) == other;
        }));
    }

    /// Returns once the program of a window has handled all events of the window until now, and the server has all
    /// that the program sent then: its answer to a ping comes after that.
    void letProgramCatchUp(xcb_window_t window) const {
        const std::uint32_t answers = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root(), XCB_CW_EVENT_MASK, &answers);
        xcb_client_message_event_t ping{.response_type = XCB_CLIENT_MESSAGE,
                                        .format = 32,
                                        .sequence = 0,
                                        .window = window,
                                        .type = atom("WM_PROTOCOLS"),
                                        .data = {}};
        ping.data.data32[0] = atom("_NET_WM_PING");
        ping.data.data32[2] = window;
        xcb_send_event(m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&ping));
        xcb_flush(m_connection);
        EXPECT_TRUE(eventually([&] {
            while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
                const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
                if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE && message.type == ping.type &&
                    message.data.data32[0] == ping.data.data32[0] && message.data.data32[2] == window)
                    return true;
            }
            return false;
        }));
        const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
        xcb_change_window_attributes(m_connection, root(), XCB_CW_EVENT_MASK, &none);
    }

    /// The place of a window with its frame, and without it.
    WindowRectangle frame(xcb_window_t window) const {
        const auto tree = answer(xcb_query_tree_reply, xcb_query_tree(m_connection, window));
        if (tree && tree->parent != tree->root && tree->parent != XCB_WINDOW_NONE)
            return frame(tree->parent);
        const auto reply = answer(xcb_get_geometry_reply, xcb_get_geometry(m_connection, window));
        const int borders = reply ? 2 * reply->border_width : 0;
        return reply ? WindowRectangle{reply->x, reply->y, reply->width + borders, reply->height + borders}
                     : WindowRectangle{};
    }
    WindowRectangle client(xcb_window_t window) const {
        const auto reply = answer(xcb_get_geometry_reply, xcb_get_geometry(m_connection, window));
        const auto origin =
            answer(xcb_translate_coordinates_reply, xcb_translate_coordinates(m_connection, window, root(), 0, 0));
        return reply && origin ? WindowRectangle{origin->dst_x, origin->dst_y, reply->width, reply->height}
                               : WindowRectangle{};
    }

    /// Its parts, to be stopped or sent signals.
    std::optional<ChildProcess> server, sessionBus, windowManager;

  private:
    xcb_window_t visibleBelow(xcb_window_t parent, const std::string& title) const {
        const auto tree = answer(xcb_query_tree_reply, xcb_query_tree(m_connection, parent));
        const auto* children = tree ? xcb_query_tree_children(tree.get()) : nullptr;
        for (int i = 0; tree && i < xcb_query_tree_children_length(tree.get()); ++i) {
            const auto state =
                answer(xcb_get_window_attributes_reply, xcb_get_window_attributes(m_connection, children[i]));
            if (!state || state->map_state != XCB_MAP_STATE_VIEWABLE)
                continue;
            if (text(children[i], XCB_ATOM_WM_NAME) == title)
                return children[i];
            if (const xcb_window_t found = visibleBelow(children[i], title); found != XCB_WINDOW_NONE)
                return found;
        }
        return XCB_WINDOW_NONE;
    }
    std::string text(xcb_window_t window, xcb_atom_t property) const {
        const auto reply = answer(xcb_get_property_reply, xcb_get_property(m_connection, 0, window, property,
                                                                           XCB_GET_PROPERTY_TYPE_ANY, 0, 100));
        return reply ? std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                   static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))
                     : std::string();
    }
    template <typename Reply, typename Cookie>
    XcbPointer<Reply> answer(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**), Cookie cookie) const {
        return XcbPointer<Reply>(wait(m_connection, cookie, nullptr));
    }

    std::string m_display;
    xcb_connection_t* m_connection = nullptr;
};

}  // namespace kinesta::testing
