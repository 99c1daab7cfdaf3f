#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/KeyStroke.h"
#include "platform/linux/keyboard/XkbObjects.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The layout of the X server's keyboard, and which of its modifiers are down. Main thread only.
///
/// Each query costs one round trip. The keymap is fetched again only when the server reports that it changed.
class X11Keyboard {
  public:
    /// `connection` must outlive this.
    explicit X11Keyboard(X11Connection& connection);

    /// What every key types in the current group, or typed before the server hung; null without a server that has XKB.
    const KeyboardLayoutCharacters* characters();

    /// The same for every group of the keymap.
    std::vector<KeyboardLayoutCharacters> charactersOfGroups();

    /// The modifier keys, and those that are down on any keyboard. Nothing without a server, or if this key (a kernel
    /// code) means nothing in the current keymap.
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code);

    /// How often the keymap was fetched.
    int fetches() const { return m_fetches; }

  private:
    bool update();
    bool prepareConnection(Deadline deadline);
    bool fetchKeymap(Deadline deadline);

    X11Connection& m_connection;
    std::uint64_t m_generation = 0;
    std::uint8_t m_firstXkbEvent = 0;
    std::uint64_t m_changes = 0;  // events so far
    std::bitset<256> m_keysDown;  // by keycode
    XkbContextPointer m_context;
    XkbKeymapPointer m_keymap;
    std::uint32_t m_group = 0;
    int m_fetches = 0;
    KeyboardLayoutCharacters m_characters;
    InlineVector<ModifierKey, 4> m_modifierKeys;
    std::array<DesktopModifiers, 256> m_modifiersByKey{};
};

}  // namespace kinesta
