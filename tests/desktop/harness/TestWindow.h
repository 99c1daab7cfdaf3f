#pragma once

#include <libevdev/libevdev.h>

#include <memory>
#include <string>
#include <vector>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// A window of the test's own X client. It has the properties that a test sets, and records the events that it gets.
/// Windows with the same connection belong to one client.
class TestWindow {
  public:
    using Connection = std::shared_ptr<xcb_connection_t>;
    static Connection connect(const TestDesktop& desktop) {
        return {xcb_connect(desktop.display().c_str(), nullptr), &xcb_disconnect};
    }

    /// `place` is that of the window without its frame. It is hidden until show().
    TestWindow(const TestDesktop& desktop, const WindowRectangle& place, const Connection& connection = nullptr)
        : m_desktop(desktop),
          m_connection(connection ? connection : connect(desktop)),
          m_window(xcb_generate_id(m_connection.get())) {
        const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                     XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
        xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, desktop.root(),
                          static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y),
                          static_cast<std::uint16_t>(place.width), static_cast<std::uint16_t>(place.height), 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
        hasFocus();  // so that the server knows it
        setSizes({1, 1}, {32767, 32767});
        setAtoms("WM_PROTOCOLS", {"WM_DELETE_WINDOW"});
    }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow() {
        xcb_destroy_window(m_connection.get(), m_window);
        xcb_flush(m_connection.get());
    }

    xcb_window_t id() const { return m_window; }

    TestWindow& set(const std::string& property, xcb_atom_t type, const std::vector<std::int64_t>& numbers) {
        m_desktop.set(m_window, property, type, numbers);
        return *this;
    }
    TestWindow& setAtoms(const std::string& property, const std::vector<std::string>& names) {
        std::vector<std::int64_t> atoms;
        for (const auto& name : names)
            atoms.push_back(m_desktop.atom(name));
        return set(property, XCB_ATOM_ATOM, atoms);
    }
    /// Such as "DOCK"; before it a type that only some desktops know.
    TestWindow& setType(const std::string& type, const std::string& special = "_TEST_TYPE") {
        return setAtoms("_NET_WM_WINDOW_TYPE", {special, "_NET_WM_WINDOW_TYPE_" + type});
    }
    TestWindow& setOwner(xcb_window_t owner) { return set("WM_TRANSIENT_FOR", XCB_ATOM_WINDOW, {owner}); }
    TestWindow& setModal() { return setAtoms("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"}); }
    TestWindow& setProcess(pid_t process) { return set("_NET_WM_PID", XCB_ATOM_CARDINAL, {process}); }
    TestWindow& setGroup(xcb_window_t leader) {
        constexpr int kInputAndGroup = 1 | 64;
        return set("WM_HINTS", XCB_ATOM_WM_HINTS, {kInputAndGroup, 1, 0, 0, 0, 0, 0, 0, leader});
    }
    /// With static gravity the positions that it requests are those of the window without its frame, as with Qt.
    TestWindow& setSizes(WindowSize minimum, WindowSize maximum, xcb_gravity_t gravity = XCB_GRAVITY_NORTH_WEST) {
        constexpr int kAsCreatedWithLimitsAndGravity = 1 | 16 | 32 | 512;
        return set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS,
                   {kAsCreatedWithLimitsAndGravity, 0, 0, 0, 0, minimum.width, minimum.height, maximum.width,
                    maximum.height, 0, 0, 0, 0, 0, 0, 0, 0, gravity});
    }

    /// Shows it and waits until it is managed and, unless it takes no focus, has the keyboard focus.
    TestWindow& show(bool takesFocus = true) {
        xcb_map_window(m_connection.get(), m_window);
        xcb_flush(m_connection.get());
        EXPECT_TRUE(eventually([&] {
            if (m_desktop.windowManager)
                return m_desktop.isManaged(m_window) && (!takesFocus || m_desktop.active() == m_window);
            xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
            return hasFocus();
        }));
        if (m_desktop.windowManager)
            m_desktop.letWindowManagerCatchUp();
        return *this;
    }

    /// The next event: "close", or a key or button with the modifiers in force before it, as in "Control+KEY_C down" or
    /// "BTN2 up". Empty if none comes in time.
    std::string next() {
        std::string text;
        for (Event event = waitForEvent(); event && text.empty(); event = text.empty() ? waitForEvent() : nullptr)
            text = describe(*event);
        return text;
    }
    /// All events that have arrived, with spaces between them, once the window manager has caught up.
    std::string events() {
        if (m_desktop.windowManager)
            m_desktop.letWindowManagerCatchUp();
        hasFocus();  // the answer comes after everything that the server has sent to this client
        std::string texts;
        while (const Event event{xcb_poll_for_event(m_connection.get())})
            if (const auto text = describe(*event); !text.empty())
                texts += (texts.empty() ? "" : " ") + text;
        return texts;
    }

  private:
    using Event = XcbPointer<xcb_generic_event_t>;

    bool hasFocus() const {
        const XcbPointer<xcb_get_input_focus_reply_t> focus(
            xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
        return focus && focus->focus == m_window;
    }

    Event waitForEvent() const {
        xcb_flush(m_connection.get());
        Event event(xcb_poll_for_event(m_connection.get()));
        while (!event && waitForInput(xcb_get_file_descriptor(m_connection.get())) &&
               xcb_connection_has_error(m_connection.get()) == 0)
            event.reset(xcb_poll_for_event(m_connection.get()));
        return event;
    }

    std::string describe(const xcb_generic_event_t& event) const {
        const int type = event.response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
            const bool isClose = message.data.data32[0] == m_desktop.atom("WM_DELETE_WINDOW");
            return isClose && message.window == m_window ? "close" : "";
        }
        if (type < XCB_KEY_PRESS || type > XCB_BUTTON_RELEASE)
            return {};
        const auto& input = reinterpret_cast<const xcb_key_press_event_t&>(event);  // for buttons too
        std::string text;
        for (unsigned bit = 1;
             const char* modifier : {"Shift+", "Lock+", "Control+", "Mod1+", "Mod2+", "Mod3+", "Mod4+", "Mod5+"}) {
            text += (input.state & bit) != 0 ? modifier : "";
            bit <<= 1U;
        }
        text += type >= XCB_BUTTON_PRESS ? "BTN" + std::to_string(input.detail)
                                         : libevdev_event_code_get_name(EV_KEY, input.detail - 8U);
        return text + (type % 2 == XCB_KEY_PRESS % 2 ? " down" : " up");
    }

    const TestDesktop& m_desktop;
    Connection m_connection;
    xcb_window_t m_window;
};

}  // namespace kinesta::testing
