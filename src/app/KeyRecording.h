#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "actions/KeyboardLayout.h"
#include "rules/CommonMacShortcut.h"
#include "rules/ShortcutModifiers.h"
#include "support/Result.h"

namespace kinesta {

/// A key event in the numbers of the system, as a toolkit passes them on.
struct NativeKey {
    /// Which key of the keyboard it is.
    std::uint32_t code = 0;
    /// What the layout makes of it.
    std::uint32_t symbol = 0;
    /// The modifiers in force before the event.
    std::uint32_t modifiers = 0;
};

/// Modifiers that are held on a keyboard, one bit each, whichever side they are on. Only the port knows the bits.
using HeldModifiers = std::uint8_t;

struct RecordedShortcut {
    std::uint16_t keyCode = 0;
    ShortcutModifiers modifiers;

    friend bool operator==(const RecordedShortcut&, const RecordedShortcut&) = default;
};

/// What is printed on the modifier keys that give ⇧, ⌃, ⌥, ⌘ and fn.
struct KeyWords {
    std::string shift;
    std::string control;
    std::string option;
    std::string command;
    std::string function;
    /// Whether people here know the keys by these words rather than by the signs.
    bool standBesideSigns = false;
};

/// The port to what pressed keys mean for a shortcut. Main thread only.
class KeyRecording {
  public:
    /// How held modifiers will be stored.
    struct Held {
        ShortcutModifiers modifiers;
        KeyWords words;
        /// Why they cannot be part of a shortcut: one sentence. Empty if they can.
        std::string problem;
    };

    virtual ~KeyRecording() = default;

    /// The modifiers that this key gives while it is down; 0 for any other key.
    virtual HeldModifiers givenBy(const NativeKey& key) const = 0;
    /// The modifiers that were in force before this event.
    virtual HeldModifiers inForce(const NativeKey& key) const = 0;
    virtual Held read(HeldModifiers held) const = 0;

    /// The ANSI virtual key code of a key. The error says why a shortcut cannot have it.
    virtual Result<std::uint16_t> keyCodeOf(const NativeKey& key) const = 0;
    /// How these modifiers are stored with this key, if read() finds no problem.
    virtual ShortcutModifiers modifiersWith(std::uint16_t keyCode, HeldModifiers held) const = 0;
    /// The key that does the same as this one while fn is held, such as Left for Home.
    virtual std::optional<std::uint16_t> underFunction(std::uint16_t keyCode) const = 0;
    /// Whether posting a key with these event flags presses this key with these modifiers.
    virtual bool presses(std::uint16_t keyCode, std::uint64_t flags, const NativeKey& key,
                         HeldModifiers held) const = 0;
    /// The layout that posting goes by.
    virtual KeyboardLayout& layout() = 0;

    /// What is printed on the keys that a stored shortcut with these modifiers presses.
    virtual KeyWords words(ShortcutModifiers modifiers) const = 0;
    /// The name of the one key that is pressed for a key with fn, such as "Home" for Left. Empty if there is none, or
    /// these event flags make it something else.
    virtual std::string nameWithFunction(std::uint16_t keyCode, std::uint64_t flags) const = 0;
    /// Whether programs here do what the title says when they get these keys.
    virtual bool works(const CommonMacShortcut& preset) const = 0;
};

/// The shortcut that presses this key with these modifiers when it is posted under the present layout. The error says
/// why there is none.
Result<RecordedShortcut> shortcutOf(const NativeKey& key, HeldModifiers held, KeyRecording& keyboard);

}  // namespace kinesta
