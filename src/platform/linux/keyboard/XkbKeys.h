#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/KeyStroke.h"
#include "platform/linux/keyboard/XkbObjects.h"

namespace kinesta {

/// What every key types in a group of a keymap, counted from 0. For a key without that group, the keymap says which of
/// its groups counts.
KeyboardLayoutCharacters charactersOfGroup(xkb_keymap* keymap, std::uint32_t group);

/// The same for all groups of the keymap.
std::vector<KeyboardLayoutCharacters> charactersOfGroups(xkb_keymap* keymap);

/// The modifiers that each key gives in a group, by kernel code; 0 for a key that gives none, locks or latches.
std::array<DesktopModifiers, 256> modifiersByKey(xkb_keymap* keymap, std::uint32_t group);

/// Picks one key for shift, control, alt and super each: the left one if it gives that modifier, else the first that
/// does.
InlineVector<ModifierKey, 4> chosenModifierKeys(const std::array<DesktopModifiers, 256>& modifiersByKey);

}  // namespace kinesta
