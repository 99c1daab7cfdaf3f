#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace kinesta {

/// What each key types (UTF-8), by ANSI virtual key code. Empty for a key that types nothing at once: a dead key, a
/// modifier, a code without a key.
using KeyboardLayoutCharacters = std::array<std::string, 128>;

/// The port to the keyboard layout in force. Main thread only.
class KeyboardLayout {
  public:
    virtual ~KeyboardLayout() = default;

    /// What every key types now, pressed alone with no modifier held and no dead key pending; nothing if the layout
    /// cannot be known. Asked afresh for every stroke.
    virtual std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() = 0;
};

}  // namespace kinesta
