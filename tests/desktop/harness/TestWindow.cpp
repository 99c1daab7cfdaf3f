#include "desktop/harness/TestWindow.h"

#include <gtest/gtest.h>
#include <xcb/xcb_icccm.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <array>
#include <utility>

#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {
namespace {

using Event = XcbPointer<xcb_generic_event_t>;

std::uint8_t typeOf(const xcb_generic_event_t& event) { return event.response_type & 0x7F; }

/// The name of the key's symbol in the current keymap.
std::string symbolOf(xcb_connection_t* connection, const xcb_key_press_event_t& event) {
    xkb_x11_setup_xkb_extension(connection, 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr,
                                nullptr);
    xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    xkb_keymap* keymap = xkb_x11_keymap_new_from_device(
        context, connection, xkb_x11_get_core_keyboard_device_id(connection), XKB_KEYMAP_COMPILE_NO_FLAGS);
    xkb_state* state = xkb_state_new(keymap);
    xkb_state_update_mask(state, event.state & 0xFFU, 0, 0, 0, 0, event.state >> 13U & 3U);
    std::array<char, 64> name{};
    xkb_keysym_get_name(xkb_state_key_get_one_sym(state, event.detail), name.data(), name.size());
    xkb_state_unref(state);
    xkb_keymap_unref(keymap);
    xkb_context_unref(context);
    return name.data();
}

}  // namespace

TestWindow::Connection TestWindow::connect(const TestDesktop& desktop) {
    return {xcb_connect(desktop.display().c_str(), nullptr), &xcb_disconnect};
}

TestWindow::TestWindow(const TestDesktop& desktop, const WindowRectangle& place, Connection connection)
    : m_desktop(desktop), m_connection(std::move(connection)), m_window(xcb_generate_id(m_connection.get())) {
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS |
                                 XCB_EVENT_MASK_BUTTON_RELEASE;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, desktop.root(),
                      static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y),
                      static_cast<std::uint16_t>(place.width), static_cast<std::uint16_t>(place.height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    setSizes({1, 1}, {32767, 32767});
    setAtoms("WM_PROTOCOLS", {"WM_DELETE_WINDOW"});
}

TestWindow::~TestWindow() {
    xcb_destroy_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

TestWindow& TestWindow::set(const std::string& property, xcb_atom_t type, std::vector<std::uint32_t> numbers) {
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window, m_desktop.atom(property), type, 32,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
    return *this;
}

TestWindow& TestWindow::setWindow(const std::string& property, xcb_window_t window) {
    return set(property, XCB_ATOM_WINDOW, {window});
}

TestWindow& TestWindow::setAtoms(const std::string& property, const std::vector<std::string>& names) {
    std::vector<std::uint32_t> atoms;
    for (const auto& name : names)
        atoms.push_back(m_desktop.atom(name));
    return set(property, XCB_ATOM_ATOM, atoms);
}

TestWindow& TestWindow::setProcess(std::int64_t process, xcb_atom_t type) {
    return set("_NET_WM_PID", type, {static_cast<std::uint32_t>(process)});
}

TestWindow& TestWindow::setMachine(const std::string& name) {
    xcb_icccm_set_wm_client_machine(m_connection.get(), m_window, XCB_ATOM_STRING, 8,
                                    static_cast<std::uint32_t>(name.size()), name.c_str());
    return *this;
}

TestWindow& TestWindow::setGroup(xcb_window_t leader) {
    xcb_icccm_wm_hints_t hints{};
    xcb_icccm_wm_hints_set_input(&hints, 1);
    xcb_icccm_wm_hints_set_window_group(&hints, leader);
    xcb_icccm_set_wm_hints(m_connection.get(), m_window, &hints);
    return *this;
}

TestWindow& TestWindow::setSizes(WindowSize minimum, WindowSize maximum) {
    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_position(&hints, 1, 0, 0);  // where it was created
    xcb_icccm_size_hints_set_min_size(&hints, minimum.width, minimum.height);
    xcb_icccm_size_hints_set_max_size(&hints, maximum.width, maximum.height);
    xcb_icccm_set_wm_normal_hints(m_connection.get(), m_window, &hints);
    return *this;
}

TestWindow& TestWindow::setStaticGravity() {
    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_win_gravity(&hints, XCB_GRAVITY_STATIC);
    xcb_icccm_set_wm_normal_hints(m_connection.get(), m_window, &hints);
    return *this;
}

void TestWindow::send() const {
    XcbPointer<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

TestWindow& TestWindow::show(bool takesFocus) {
    xcb_map_window(m_connection.get(), m_window);
    send();
    EXPECT_TRUE(eventually([&] {
        if (m_desktop.hasWindowManager())
            return m_desktop.isManaged(m_window) && (!takesFocus || m_desktop.active() == m_window);
        xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
        const XcbPointer<xcb_get_input_focus_reply_t> focus(
            xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
        return focus && focus->focus == m_window;
    }));
    if (m_desktop.hasWindowManager())
        m_desktop.letWindowManagerCatchUp(m_window);
    return *this;
}

std::string TestWindow::next() {
    while (const Event event{waitForEvent()})
        if (auto text = describe(*event); !text.empty())
            return text;
    return {};
}

std::vector<std::string> TestWindow::events() {
    send();  // the answer comes after everything that the server has sent to this client
    std::vector<std::string> texts;
    while (const Event event{xcb_poll_for_event(m_connection.get())})
        if (auto text = describe(*event); !text.empty())
            texts.push_back(std::move(text));
    return texts;
}

std::vector<std::string> TestWindow::eventsAfterWindowManager() {
    m_desktop.letWindowManagerCatchUp(m_window);
    return events();
}

bool TestWindow::waitForKey(std::uint8_t keycode) {
    while (const Event event{waitForEvent()})
        if (typeOf(*event) == XCB_KEY_PRESS && reinterpret_cast<const xcb_key_press_event_t&>(*event).detail == keycode)
            return true;
    return false;
}

xcb_generic_event_t* TestWindow::waitForEvent() const {
    xcb_flush(m_connection.get());
    xcb_generic_event_t* event = xcb_poll_for_event(m_connection.get());
    while (event == nullptr && waitForInput(xcb_get_file_descriptor(m_connection.get())) &&
           xcb_connection_has_error(m_connection.get()) == 0)
        event = xcb_poll_for_event(m_connection.get());
    return event;
}

std::string TestWindow::describe(const xcb_generic_event_t& event) const {
    if (typeOf(event) == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        const bool isClose = message.window == m_window && message.data.data32[0] == m_desktop.atom("WM_DELETE_WINDOW");
        return isClose ? "close" : "";
    }
    if (typeOf(event) < XCB_KEY_PRESS || typeOf(event) > XCB_BUTTON_RELEASE)
        return {};
    const auto& input = reinterpret_cast<const xcb_key_press_event_t&>(event);  // button events have the same layout
    std::string text = typeOf(event) % 2 == XCB_KEY_PRESS % 2 ? "press " : "release ";
    unsigned bit = 1;
    for (const char* modifier : {"Shift+", "Lock+", "Control+", "Mod1+", "Mod2+", "Mod3+", "Mod4+", "Mod5+"}) {
        text += (input.state & bit) != 0 ? modifier : "";
        bit <<= 1U;
    }
    return text + (typeOf(event) >= XCB_BUTTON_PRESS ? "Button" + std::to_string(input.detail)
                                                     : symbolOf(m_connection.get(), input));
}

}  // namespace kinesta::testing
