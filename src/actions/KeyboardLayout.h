#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace kinesta {

/// What each key types (UTF-8), by ANSI virtual key code. Empty for dead keys, modifiers and unused codes.
using KeyboardLayoutCharacters = std::array<std::string, 128>;

/// The port to the current keyboard layout. Main thread only.
class KeyboardLayout {
  public:
    virtual ~KeyboardLayout() = default;

    /// What every key types without modifiers or a pending dead key. Empty if the layout is unknown. Called for every
    /// stroke.
    virtual std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() = 0;
};

}  // namespace kinesta
