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

    /// The selectable keys, in search order.
    static std::span<const ShortcutKey> choices();

    /// The name of a key code, or "Key " and the code in decimal if it has no name.
    static std::string nameFor(std::uint16_t keyCode);

    /// The name in the person's language.
    static std::string shownName(std::uint16_t keyCode);

    /// The text shown to the user: the modifiers in the order "fn ", ⌃, ⌥, ⇧, ⌘, then the name of the key.
    static std::string label(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// The event flags of a stroke: command 0x100000, option 0x080000, control 0x040000, shift 0x020000, function
    /// 0x800000, and for arrow keys the numeric-pad mask 0x200000.
    static std::uint64_t eventFlags(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// Whether fn must be pressed before the key and released after it: an arrow key with `function`.
    static bool requiresFunctionKeyTransition(std::uint16_t keyCode, ShortcutModifiers modifiers);
};

}  // namespace kinesta
