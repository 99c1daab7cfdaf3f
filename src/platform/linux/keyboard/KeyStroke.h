#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "actions/EventSynthesizer.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "support/InlineVector.h"

namespace kinesta {

/// Modifiers as desktops here know them, one bit each.
using DesktopModifiers = std::uint8_t;
inline constexpr DesktopModifiers kShiftModifier = 1;
inline constexpr DesktopModifiers kControlModifier = 2;
inline constexpr DesktopModifiers kAltModifier = 4;
inline constexpr DesktopModifiers kSuperModifier = 8;
/// Any other modifier that changes what a key means while it is held, such as AltGr.
inline constexpr DesktopModifiers kOtherModifier = 16;

/// A key or button (kernel code KEY_… or BTN_…) that goes down or up.
struct InputTransition {
    std::uint16_t code;
    KeyTransition transition;

    friend bool operator==(const InputTransition&, const InputTransition&) = default;
};

using InputTransitions = InlineVector<InputTransition, 16>;

/// A key that acts as these modifiers while it is down.
struct ModifierKey {
    std::uint16_t code;
    DesktopModifiers modifiers;
};

/// What must be known about a keyboard to press a shortcut on it.
struct ModifierSituation {
    /// The keys that give shift, control, alt and super, one modifier each.
    InlineVector<ModifierKey, 4> available;
    /// The modifier keys that are down now. Keys that lock, such as Caps Lock, are left out: releasing one and pressing
    /// it again would toggle the lock.
    InlineVector<ModifierKey, 8> held;
};

/// A stroke of one key with exactly the wanted modifiers: what to send when it goes down, then what to send when it
/// comes up.
struct KeyStroke {
    InputTransitions down;
    InputTransitions up;
};

/// The modifiers for event flags (the masks of ShortcutKey::eventFlags()). ⌘ becomes `commandKey`, or Super if ⌃ is
/// wanted too. Flags without a counterpart are ignored.
DesktopModifiers modifiersForFlags(std::uint64_t flags, LinuxActionSettings::CommandKey commandKey);

/// How to strike a key so that exactly the `wanted` modifiers apply while it is down, and every modifier key is
/// afterwards as it was before. A wanted modifier that the keyboard has no key for is left out.
KeyStroke strokeKey(std::uint16_t code, DesktopModifiers wanted, const ModifierSituation& situation);

}  // namespace kinesta
