#pragma once

#include <optional>
#include <string>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/X11Keyboard.h"

namespace kinesta {

/// The layout of the X server. In a Wayland session with XWayland that is also the session's layout. Without an X
/// server, the layout that the system is set up with, which is a guess: Wayland gives the layout only to the window
/// with the keyboard focus.
class XkbKeyboardLayout final : public KeyboardLayout {
  public:
    static constexpr const char* kSystemKeyboardFile = "/etc/default/keyboard";

    /// `keyboard` must outlive this.
    explicit XkbKeyboardLayout(X11Keyboard& keyboard, std::string systemKeyboardFile = kSystemKeyboardFile);

    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override;

    /// What every key types in each layout that the person can switch to.
    std::vector<KeyboardLayoutCharacters> charactersOfLayouts();

  private:
    const std::vector<KeyboardLayoutCharacters>& systemLayouts();

    X11Keyboard& m_keyboard;
    std::string m_systemKeyboardFile;
    std::vector<KeyboardLayoutCharacters> m_systemCharacters;
};

}  // namespace kinesta
