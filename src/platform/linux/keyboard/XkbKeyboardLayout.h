#pragma once

#include <optional>
#include <string>
#include <vector>

#include "actions/KeyboardLayout.h"
#include "platform/linux/keyboard/X11Keyboard.h"

namespace kinesta {

/// The layout of the X server, which in a Wayland session with XWayland is that of the session too. Without an X server
/// the layout that the system is set up with, which is a guess: Wayland tells the layout only to the window that has
/// the keyboard.
class XkbKeyboardLayout final : public KeyboardLayout {
  public:
    static constexpr const char* kSystemKeyboardFile = "/etc/default/keyboard";

    /// `keyboard` must outlive this.
    explicit XkbKeyboardLayout(X11Keyboard& keyboard, std::string systemKeyboardFile = kSystemKeyboardFile);

    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override;

    /// What every key types in each of the layouts that the person can switch between.
    std::vector<KeyboardLayoutCharacters> charactersOfLayouts();

  private:
    const std::vector<KeyboardLayoutCharacters>& systemLayouts();

    X11Keyboard& m_keyboard;
    std::string m_systemKeyboardFile;
    std::vector<KeyboardLayoutCharacters> m_systemCharacters;
};

}  // namespace kinesta
