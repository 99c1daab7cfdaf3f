#include "desktop/harness/EventWindow.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace kinesta::testing {
namespace {

using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;

constexpr std::array<const char*, 8> kModifiers{"Shift+", "Lock+", "Control+", "Mod1+",
                                                "Mod2+",  "Mod3+", "Mod4+",    "Mod5+"};

std::uint8_t typeOf(const xcb_generic_event_t& event) { return event.response_type & 0x7F; }

}  // namespace

EventWindow::EventWindow(const TestDesktop& desktop)
    : m_connection(xcb_connect(desktop.display().c_str(), nullptr)),
      m_window(xcb_generate_id(m_connection)),
      m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref),
      m_keymap(nullptr, &xkb_keymap_unref) {
    if (!xkb_x11_setup_xkb_extension(m_connection, 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
                                     nullptr, nullptr))
        throw std::runtime_error("no XKB");
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS |
                               XCB_EVENT_MASK_BUTTON_RELEASE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, desktop.root(), 0, 0,
                      desktop.screen()->width_in_pixels, desktop.screen()->height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, desktop.screen()->root_visual, XCB_CW_EVENT_MASK, &mask);
    xcb_map_window(m_connection, m_window);
    xcb_flush(m_connection);
    if (!desktop.bringToKeyboard(m_window))
        throw std::runtime_error("the window does not come to the front");
    all();
}

EventWindow::~EventWindow() { xcb_disconnect(m_connection); }

std::optional<std::string> EventWindow::next(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (const Event event{waitForEvent(deadline), &std::free})
        if (auto text = describe(*event))
            return text;
    return std::nullopt;
}

bool EventWindow::waitForKey(std::uint8_t keycode) {
    const auto deadline = std::chrono::steady_clock::now() + ChildProcess::kPatience;
    while (const Event event{waitForEvent(deadline), &std::free})
        if (typeOf(*event) == XCB_KEY_PRESS && reinterpret_cast<const xcb_key_press_event_t&>(*event).detail == keycode)
            return true;
    return false;
}

xcb_generic_event_t* EventWindow::waitForEvent(std::chrono::steady_clock::time_point deadline) {
    for (;;) {
        if (xcb_generic_event_t* event = xcb_poll_for_event(m_connection))
            return event;
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (xcb_connection_has_error(m_connection) != 0 || !waitForInput(xcb_get_file_descriptor(m_connection), left))
            return nullptr;
    }
}

std::vector<std::string> EventWindow::all() {
    std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    std::vector<std::string> texts;
    while (const Event event{xcb_poll_for_event(m_connection), &std::free})
        if (auto text = describe(*event))
            texts.push_back(std::move(*text));
    return texts;
}

void EventWindow::readKeymap() {
    m_keymap.reset(xkb_x11_keymap_new_from_device(
        m_context.get(), m_connection, xkb_x11_get_core_keyboard_device_id(m_connection), XKB_KEYMAP_COMPILE_NO_FLAGS));
}

std::optional<std::string> EventWindow::describe(const xcb_generic_event_t& event) {
    if (typeOf(event) < XCB_KEY_PRESS || typeOf(event) > XCB_BUTTON_RELEASE)
        return std::nullopt;
    const auto& input = reinterpret_cast<const xcb_key_press_event_t&>(event);  // buttons have the same shape
    const bool isPress = typeOf(event) == XCB_KEY_PRESS || typeOf(event) == XCB_BUTTON_PRESS;
    std::string text = isPress ? "press " : "release ";
    for (std::size_t bit = 0; bit < kModifiers.size(); ++bit)
        if ((input.state >> bit & 1) != 0)
            text += kModifiers[bit];
    if (typeOf(event) >= XCB_BUTTON_PRESS)
        return text + "Button" + std::to_string(input.detail);

    if (isPress || !m_keymap)  // afresh: nobody tells a client that knows XKB of changes unless it asks for that
        readKeymap();
    const std::unique_ptr<xkb_state, decltype(&xkb_state_unref)> state(xkb_state_new(m_keymap.get()), &xkb_state_unref);
    xkb_state_update_mask(state.get(), input.state & 0xFFU, 0, 0, 0, 0, input.state >> 13U & 3U);
    std::array<char, 64> name{};
    xkb_keysym_get_name(xkb_state_key_get_one_sym(state.get(), input.detail), name.data(), name.size());
    return text + name.data();
}

}  // namespace kinesta::testing
