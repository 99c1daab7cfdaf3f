#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/KeyStroke.h"
#include "platform/linux/keyboard/XkbObjects.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// What the X server's keyboard is set to and which of its modifiers are down. Main thread only.
///
/// The keymap is fetched once and again only when the server says that it changed; a question costs one round trip,
/// in which the server also tells the group in force and what changed before.
class X11Keyboard {
  public:
    /// `connection` must outlive this.
    explicit X11Keyboard(X11Connection& connection);

    /// What every key types in the group in force; nothing without a server that knows XKB.
    const KeyboardLayoutCharacters* characters();

    /// The same for every group of the keymap.
    std::vector<KeyboardLayoutCharacters> charactersOfGroups();

    /// The modifier keys, and those that are down on any keyboard. Without a server, nothing is there.
    ModifierSituation modifiers();

    /// Whether the key (a kernel code) means anything in the keymap in force.
    bool hasKey(std::uint16_t code);

    /// How often the keymap was fetched.
    int fetches() const { return m_fetches; }

  private:
    bool update();
    bool prepareConnection(xcb_connection_t* connection);
    bool drainChanges(xcb_connection_t* connection);
    bool fetchKeymap(xcb_connection_t* connection);

    X11Connection& m_connection;
    std::uint64_t m_generation = 0;
    std::uint8_t m_firstXkbEvent = 0;
    XkbContextPointer m_context;
    XkbKeymapPointer m_keymap;
    std::uint32_t m_group = 0;
    int m_fetches = 0;
    KeyboardLayoutCharacters m_characters;
    InlineVector<ModifierKey, 4> m_modifierKeys;
    std::array<DesktopModifiers, 256> m_modifiersByKey{};
};

}  // namespace kinesta
