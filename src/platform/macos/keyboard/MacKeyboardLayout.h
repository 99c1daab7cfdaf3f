#pragma once

#include "actions/KeyboardLayout.h"

namespace kinesta {

/// The keyboard layout in use; with an input method, such as for Japanese, the Latin layout below it. Main thread only:
/// elsewhere the system ends the program.
class MacKeyboardLayout final : public KeyboardLayout {
  public:
    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override;
};

}  // namespace kinesta
