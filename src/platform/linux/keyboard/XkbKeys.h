#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/KeyStroke.h"
#include "platform/linux/keyboard/XkbObjects.h"

namespace kinesta {

/// What every key types in a group of a keymap (its layouts are counted from 0; one that a key does not have is
/// brought into its range as the keymap says).
KeyboardLayoutCharacters charactersOfGroup(xkb_keymap* keymap, std::uint32_t group);

/// The same for all of its groups.
std::vector<KeyboardLayoutCharacters> charactersOfGroups(xkb_keymap* keymap);

/// The keymap's modifier keys in a group, by kernel code; 0 for every key that is none, that locks or that latches.
std::array<DesktopModifiers, 256> modifiersByKey(xkb_keymap* keymap, std::uint32_t group);

/// Of these keys, one for shift, control, alt and super each: the left one if it is one, else the first that is.
InlineVector<ModifierKey, 4> chosenModifierKeys(const std::array<DesktopModifiers, 256>& modifiersByKey);

}  // namespace kinesta
