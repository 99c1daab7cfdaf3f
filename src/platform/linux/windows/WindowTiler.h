#pragma once

#include "actions/WindowTilingMenuCommand.h"
#include "actions/Workspace.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// Tiles the active window, and the next ones if a command arranges several, by asking the window manager. Keeps no
/// state: each window stores its own earlier position. Main thread only.
class WindowTiler {
  public:
    explicit WindowTiler(EwmhDesktop& desktop) : m_desktop(desktop) {}

    /// Whether the active window belongs to `application` and the command can do something with it. Waits at most
    /// `timeout` seconds.
    bool canPerform(WindowTilingMenuCommand command, ProcessIdentifier application, Seconds timeout);

    /// Performs a command if canPerform(). Returns whether the window manager was asked, or the window had nothing to
    /// undo. Waits at most `timeout` seconds, but not for the windows to move.
    bool perform(WindowTilingMenuCommand command, ProcessIdentifier application, Seconds timeout);

  private:
    /// A window before any change, and after it stopped being maximized or fullscreen.
    struct Participant {
        EwmhWindow before;
        EwmhWindow restored;
    };

    bool untile(const EwmhSnapshot& desktop, Deadline deadline);
    std::vector<Participant> restored(const std::vector<EwmhWindow>& windows, Deadline deadline);

    EwmhDesktop& m_desktop;
};

}  // namespace kinesta
