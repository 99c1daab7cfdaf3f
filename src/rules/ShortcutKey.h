#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rules/ShortcutModifiers.h"

namespace kinesta {

/// The key half of a shortcut. Key codes are the ANSI virtual key codes of a US keyboard.
struct ShortcutKey {
    std::string_view name;
    std::uint16_t keyCode;

    /// The keys that can be chosen, in the order in which they are searched.
    static std::span<const ShortcutKey> choices();

    /// The name of a key code; for one without a name "Key " and the code in decimal.
    static std::string nameFor(std::uint16_t keyCode);

    /// What a person reads: the modifiers in the order fn ⌃ ⌥ ⇧ ⌘, then the key's name; a blank follows fn.
    static std::string label(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// The event flags of a stroke: one mask a modifier (command 0x100000, option 0x080000, control 0x040000,
    /// shift 0x020000, function 0x800000), and 0x200000, the numeric-pad mask, for the arrow keys.
    static std::uint64_t eventFlags(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// Whether the fn key must go down before the key and up after it: an arrow key with `function`.
    static bool requiresFunctionKeyTransition(std::uint16_t keyCode, ShortcutModifiers modifiers);
};

}  // namespace kinesta
