#include "platform/linux/keyboard/X11InputPoster.h"

#include <linux/input-event-codes.h>
#include <xcb/xtest.h>

#include "platform/linux/keyboard/XkbObjects.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta {
namespace {

constexpr std::uint8_t kMiddleButton = 2;

void fake(xcb_connection_t* connection, xcb_window_t root, std::uint8_t type, std::uint8_t detail) {
    xcb_test_fake_input(connection, type, detail, XCB_CURRENT_TIME, root, 0, 0, 0);
}

}  // namespace

X11InputPoster::X11InputPoster(X11Connection& connection, X11Keyboard& keyboard)
    : m_connection(connection), m_keyboard(keyboard) {}

bool X11InputPoster::isAvailable() { return canPostInput() && m_connection.answers(); }

bool X11InputPoster::canPostInput() { return m_connection.open() != nullptr && m_connection.canPostInput(); }

bool X11InputPoster::canPost(std::uint16_t code) {
    return canPostInput() && (code == BTN_MIDDLE || m_keyboard.hasKey(code));
}

std::optional<DesktopLocation> X11InputPoster::pointerLocation() {
    xcb_connection_t* connection = m_connection.open();
    if (connection == nullptr)
        return std::nullopt;
    const XcbPointer<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, m_connection.root()), nullptr));
    if (!reply)
        return std::nullopt;
    return DesktopLocation{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

bool X11InputPoster::post(std::span<const InputTransition> transitions) {
    xcb_connection_t* connection = m_connection.open();
    if (connection == nullptr || !m_connection.canPostInput())
        return false;
    const xcb_window_t root = m_connection.root();
    for (const InputTransition& step : transitions) {
        const bool isDown = step.transition == KeyTransition::down;
        if (step.code == BTN_MIDDLE) {
            fake(connection, root, isDown ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, kMiddleButton);
            continue;
        }
        const auto keycode = static_cast<std::uint8_t>(step.code + kFirstXkbKeycode);
        // The server keeps the keys of its posting device apart from those of real keyboards. A modifier that we
        // pressed again for the person, who then let go of it on their keyboard, stays down on the posting device for
        // good, and its next press there would be dropped. Letting go first is seen by nobody if it was up.
        if (isDown)
            fake(connection, root, XCB_KEY_RELEASE, keycode);
        fake(connection, root, isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode);
    }
    xcb_flush(connection);
    return xcb_connection_has_error(connection) == 0;
}

}  // namespace kinesta
