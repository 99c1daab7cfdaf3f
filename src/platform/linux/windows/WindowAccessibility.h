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
/// An ordinary window or dialog has the role "AXWindow", a modal dialog "AXSheet", and what a desktop is furnished
/// with "AXUnknown". Every attribute is asked for anew when it is read; other attributes fail. An element has the
/// messaging timeout of the one that it was read from until it gets its own. Pressing does nothing, and says so, once
/// the person has gone to another window: what the front window's own button or menu would have done would surprise.
class WindowAccessibility : public AccessibilityElements {
  public:
    /// How long a request waits when nobody said otherwise, in seconds.
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
