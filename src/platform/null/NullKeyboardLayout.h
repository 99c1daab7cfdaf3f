#pragma once

#include "actions/KeyboardLayout.h"

namespace kinesta {

/// Knows no layout.
class NullKeyboardLayout final : public KeyboardLayout {
  public:
    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override { return std::nullopt; }
};

}  // namespace kinesta
