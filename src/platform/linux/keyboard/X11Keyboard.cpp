#include "platform/linux/keyboard/X11Keyboard.h"

#include <xkbcommon/xkbcommon-x11.h>

#include "platform/linux/keyboard/XcbXkb.h"
#include "platform/linux/keyboard/XkbKeys.h"
#include "platform/linux/x11/XcbWait.h"

namespace kinesta {
namespace {

constexpr Seconds kPatience = 0.5;
constexpr std::uint16_t kCoreKeyboard = XCB_XKB_ID_USE_CORE_KBD;

}  // namespace

X11Keyboard::X11Keyboard(X11Connection& connection)
    : m_connection(connection), m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)) {}

const KeyboardLayoutCharacters* X11Keyboard::characters() { return update() ? &m_characters : nullptr; }

std::vector<KeyboardLayoutCharacters> X11Keyboard::charactersOfGroups() {
    return update() ? kinesta::charactersOfGroups(m_keymap.get()) : std::vector<KeyboardLayoutCharacters>{};
}

bool X11Keyboard::hasKey(std::uint16_t code) {
    if (!update())
        return false;
    const xkb_keycode_t keycode = code + std::uint32_t{kFirstXkbKeycode};
    const xkb_keysym_t* symbols = nullptr;
    return keycode <= 255 && xkb_keymap_key_get_syms_by_level(m_keymap.get(), keycode, 0, 0, &symbols) > 0;
}

ModifierSituation X11Keyboard::modifiers() {
    ModifierSituation situation;
    if (!update())
        return situation;
    situation.available = m_modifierKeys;
    xcb_connection_t* connection = m_connection.open();
    if (connection == nullptr)
        return situation;
    const XcbPointer<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
    for (std::uint16_t keycode = kFirstXkbKeycode; keys && keycode < 256; ++keycode) {
        const auto code = static_cast<std::uint16_t>(keycode - kFirstXkbKeycode);
        const bool isDown = (keys->keys[keycode / 8] >> (keycode % 8) & 1) != 0;
        if (isDown && m_modifiersByKey[code] != 0)
            situation.held.push_back({code, m_modifiersByKey[code]});
    }
    return situation;
}

bool X11Keyboard::update() {
    xcb_connection_t* connection = m_connection.open();
    if (connection == nullptr)
        return false;
    if (m_generation != m_connection.generation() && !prepareConnection(connection))
        return false;
    // The first question of every action: whoever answers it in time is not asked in vain for the rest.
    const unsigned question = xcb_xkb_get_state(connection, kCoreKeyboard).sequence;
    const auto answer = awaitXcbReply(connection, question, xcbDeadlineIn(kPatience));
    if (!answer)
        xcb_discard_reply(connection, question);
    if (!answer || !*answer)
        return false;
    const auto* state = static_cast<const xcb_xkb_get_state_reply_t*>(answer->get());
    // After the reply: what the server sent before it has arrived with it.
    if (drainChanges(connection))
        m_keymap.reset();
    const bool isStale = m_keymap == nullptr;
    if (isStale && !fetchKeymap(connection))
        return false;
    if (isStale || state->group != m_group) {
        m_group = state->group;
        m_characters = charactersOfGroup(m_keymap.get(), m_group);
        m_modifiersByKey = modifiersByKey(m_keymap.get(), m_group);
        m_modifierKeys = chosenModifierKeys(m_modifiersByKey);
    }
    return true;
}

bool X11Keyboard::prepareConnection(xcb_connection_t* connection) {
    m_keymap.reset();
    if (xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &m_firstXkbEvent,
                                    nullptr) == 0)
        return false;
    constexpr std::uint16_t kEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t kMapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                        XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_EXPLICIT_COMPONENTS |
                                        XCB_XKB_MAP_PART_KEY_ACTIONS | XCB_XKB_MAP_PART_KEY_BEHAVIORS |
                                        XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events(connection, kCoreKeyboard, kEvents, 0, kEvents, kMapParts, kMapParts, nullptr);
    m_generation = m_connection.generation();
    return true;
}

bool X11Keyboard::drainChanges(xcb_connection_t* connection) {
    bool hasChanged = false;
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(connection)})
        hasChanged |= (event->response_type & 0x7F) == m_firstXkbEvent;  // we asked for changes alone
    return hasChanged;
}

bool X11Keyboard::fetchKeymap(xcb_connection_t* connection) {
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    if (device < 0)
        return false;
    m_keymap.reset(xkb_x11_keymap_new_from_device(m_context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!m_keymap)
        return false;
    ++m_fetches;
    return true;
}

}  // namespace kinesta
