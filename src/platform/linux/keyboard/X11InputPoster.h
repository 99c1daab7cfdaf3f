#pragma once

#include "platform/linux/keyboard/InputPoster.h"
#include "platform/linux/keyboard/X11Keyboard.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// Posts through XTest, the X server's extension for test programs.
class X11InputPoster final : public InputPoster {
  public:
    /// Both must outlive this. `keyboard` must use the same connection.
    X11InputPoster(X11Connection& connection, X11Keyboard& keyboard);

    bool isAvailable() override;
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override;
    std::optional<DesktopLocation> pointerLocation() override;
    bool post(std::span<const InputTransition> transitions) override;

  private:
    X11Connection& m_connection;
    X11Keyboard& m_keyboard;
};

}  // namespace kinesta
