#include "platform/linux/keyboard/X11InputPoster.h"

#include <linux/input-event-codes.h>
#include <xcb/xtest.h>

#include <utility>

#include "platform/linux/keyboard/XkbObjects.h"

namespace kinesta {
namespace {

constexpr std::uint8_t kMiddleButton = 2;
constexpr Seconds kPatience = 0.15;

void fake(xcb_connection_t* connection, xcb_window_t root, std::uint8_t type, std::uint8_t detail) {
    xcb_test_fake_input(connection, type, detail, XCB_CURRENT_TIME, root, 0, 0, 0);
}

}  // namespace

X11InputPoster::X11InputPoster(X11Connection& connection, X11Keyboard& keyboard)
    : m_connection(connection), m_keyboard(keyboard) {}

bool X11InputPoster::isAvailable() { return m_connection.answers(kPatience) && m_connection.canPostInput(); }

std::optional<ModifierSituation> X11InputPoster::modifiersFor(std::uint16_t code) {
    auto situation = m_keyboard.modifiersFor(code);
    return m_connection.canPostInput() ? std::move(situation) : std::nullopt;
}

std::optional<DesktopLocation> X11InputPoster::pointerLocation() {
    const auto deadline = deadlineIn(kPatience);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    const auto reply = m_connection.reply<xcb_query_pointer_reply_t>(
        xcb_query_pointer(m_connection.xcb(), m_connection.root()), deadline);
    if (!reply)
        return std::nullopt;
    return DesktopLocation{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

bool X11InputPoster::post(std::span<const InputTransition> transitions) {
    if (!m_connection.prepare(deadlineIn(kPatience)) || !m_connection.canPostInput())
        return false;
    xcb_connection_t* connection = m_connection.xcb();
    const xcb_window_t root = m_connection.root();
    for (const InputTransition& step : transitions) {
        const bool isDown = step.transition == KeyTransition::down;
        if (step.code == BTN_MIDDLE) {
            fake(connection, root, isDown ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, kMiddleButton);
            continue;
        }
        const auto keycode = static_cast<std::uint8_t>(step.code + kFirstXkbKeycode);
        // The server tracks the keys of its posting device apart from those of real keyboards. If we press a modifier
        // again for the person, who then releases it on their keyboard, it stays down on the posting device and its
        // next press there is ignored. Releasing a key first prevents that, and has no effect if it is up.
        if (isDown)
            fake(connection, root, XCB_KEY_RELEASE, keycode);
        fake(connection, root, isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode);
    }
    xcb_flush(connection);
    return xcb_connection_has_error(connection) == 0;
}

}  // namespace kinesta
