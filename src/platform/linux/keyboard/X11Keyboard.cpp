#include "platform/linux/keyboard/X11Keyboard.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <utility>

#include "platform/linux/keyboard/XcbXkb.h"
#include "platform/linux/keyboard/XkbKeys.h"

namespace kinesta {
namespace {

constexpr Seconds kPatience = 0.15;
/// A keymap takes the server and us several steps.
constexpr Seconds kKeymapPatience = 0.5;
constexpr std::uint16_t kCoreKeyboard = XCB_XKB_ID_USE_CORE_KBD;

}  // namespace

X11Keyboard::X11Keyboard(X11Connection& connection)
    : m_connection(connection), m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)) {}

const KeyboardLayoutCharacters* X11Keyboard::characters() {
    // While the server hangs, the layout that it reported last is a better guess than the system's.
    const bool isKnown = update() || (m_keymap && m_connection.xcb() != nullptr);
    return isKnown ? &m_characters : nullptr;
}

std::vector<KeyboardLayoutCharacters> X11Keyboard::charactersOfGroups() {
    return update() ? kinesta::charactersOfGroups(m_keymap.get()) : std::vector<KeyboardLayoutCharacters>{};
}

std::optional<ModifierSituation> X11Keyboard::modifiersFor(std::uint16_t code) {
    if (!update())
        return std::nullopt;
    const auto keycode = static_cast<xcb_keycode_t>(code + kFirstXkbKeycode);
    const xkb_keysym_t* symbols = nullptr;
    if (code + kFirstXkbKeycode > 255 || xkb_keymap_key_get_syms_by_level(m_keymap.get(), keycode, 0, 0, &symbols) <= 0)
        return std::nullopt;
    ModifierSituation situation{m_modifierKeys, {}};
    for (std::uint16_t each = 0; each + kFirstXkbKeycode < 256; ++each) {
        const auto bit = static_cast<std::size_t>(each + kFirstXkbKeycode);
        if (m_keysDown[bit] && m_modifiersByKey[each] != 0)
            situation.held.push_back({each, m_modifiersByKey[each]});
    }
    return situation;
}

/// One round trip.
bool X11Keyboard::update() {
    if (!m_connection.prepare(deadlineIn(kPatience)))
        return false;
    xcb_connection_t* connection = m_connection.xcb();
    if (m_generation != m_connection.generation() && !prepareConnection(deadlineIn(kKeymapPatience)))
        return false;
    const auto deadline = deadlineIn(kPatience);
    const auto stateCookie = xcb_xkb_get_state(connection, kCoreKeyboard);
    const auto keysCookie = xcb_query_keymap(connection);
    const auto state = m_connection.reply<xcb_xkb_get_state_reply_t>(stateCookie, deadline);
    const auto keys = m_connection.reply<xcb_query_keymap_reply_t>(keysCookie, deadline);
    if (!state || !keys)
        return false;
    for (std::size_t keycode = 0; keycode < m_keysDown.size(); ++keycode)
        m_keysDown[keycode] = (keys->keys[keycode / 8] >> (keycode % 8) & 1) != 0;
    // After the replies: every event that the server sent before them has arrived.
    m_connection.takeEvents();
    // We selected no XKB events other than keymap changes.
    if (std::exchange(m_changes, m_connection.eventCount(m_firstXkbEvent)) != m_connection.eventCount(m_firstXkbEvent))
        m_keymap.reset();
    const bool isStale = m_keymap == nullptr;
    if (isStale && !fetchKeymap(deadlineIn(kKeymapPatience)))
        return false;
    if (isStale || state->group != m_group) {
        m_group = state->group;
        m_characters = charactersOfGroup(m_keymap.get(), m_group);
        m_modifiersByKey = modifiersByKey(m_keymap.get(), m_group);
        m_modifierKeys = chosenModifierKeys(m_modifiersByKey);
    }
    return true;
}

bool X11Keyboard::prepareConnection(Deadline deadline) {
    m_keymap.reset();
    m_changes = 0;
    xcb_connection_t* connection = m_connection.xcb();
    bool isPrepared = false;
    m_connection.runUntil(deadline, [&] {
        isPrepared = xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
                                                 XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                                 nullptr, nullptr, &m_firstXkbEvent, nullptr) != 0;
    });
    if (!isPrepared)
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

bool X11Keyboard::fetchKeymap(Deadline deadline) {
    xcb_connection_t* connection = m_connection.xcb();
    m_connection.runUntil(deadline, [&] {
        const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
        if (device >= 0)
            m_keymap.reset(
                xkb_x11_keymap_new_from_device(m_context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    });
    m_fetches += m_keymap ? 1 : 0;
    return m_keymap != nullptr;
}

}  // namespace kinesta
