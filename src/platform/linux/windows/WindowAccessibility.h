#pragma once

#include "actions/AccessibilityElements.h"
#include "platform/linux/windows/AccessibilityBus.h"
#include "platform/linux/windows/EwmhDesktop.h"
#include "platform/linux/windows/WindowTiler.h"

namespace kinesta {

/// The windows of X11 as the elements that actions look for:
///
///     application   AXFocusedWindow, AXMainWindow, AXMenuBar
///     window        AXRole, AXMinimized, AXChildren (its modal dialogs, also those inside it), AXCloseButton
///     close button  AXEnabled; AXPress
///     menu bar      AXChildren (one item for each tiling command)
///     menu item     AXIdentifier, AXEnabled; AXPress
///
/// An ordinary window or dialog has the role "AXWindow", a modal dialog "AXSheet", and a dock, panel or the like
/// "AXUnknown". Each read of an attribute asks the desktop again; other attributes fail. An element has the messaging
/// timeout of the element that it was read from until it gets its own. Pressing does nothing and fails once another
/// window is active: the person has left the window and would not expect it to close or move.
class WindowAccessibility : public AccessibilityElements {
  public:
    /// How long a request waits if no timeout was set, in seconds.
    static constexpr Seconds kDefaultTimeout = 0.5;

    WindowAccessibility(EwmhDesktop& desktop, WindowTiler& tiler, AccessibilityBus& programs)
        : m_desktop(desktop), m_tiler(tiler), m_programs(programs) {}

    AccessibilityElementHandle applicationElement(ProcessIdentifier application) override;

  private:
    EwmhDesktop& m_desktop;
    WindowTiler& m_tiler;
    AccessibilityBus& m_programs;
};

}  // namespace kinesta
