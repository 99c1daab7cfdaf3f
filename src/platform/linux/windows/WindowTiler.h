#pragma once

#include "actions/WindowTilingMenuCommand.h"
#include "actions/Workspace.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// Tiles the active window, with the next ones where a command arranges several, by asking the window manager.
/// Nothing is kept here: each window remembers itself where it was before. Main thread only.
class WindowTiler {
  public:
    explicit WindowTiler(EwmhDesktop& desktop) : m_desktop(desktop) {}

    /// Whether a command can do something with the active window, and that is of this application. Waits at most
    /// `timeout` seconds.
    bool canPerform(WindowTilingMenuCommand command, ProcessIdentifier application, Seconds timeout);

    /// Performs a command if canPerform(); whether the window manager was asked. Waits at most `timeout` seconds, and
    /// not for the windows to have moved.
    bool perform(WindowTilingMenuCommand command, ProcessIdentifier application, Seconds timeout);

  private:
    /// A window before anything was done to it, and after it stopped being maximized or fullscreen.
    struct Participant {
        EwmhWindow before;
        EwmhWindow restored;
    };

    bool untile(const EwmhSnapshot& desktop, Deadline deadline);
    std::vector<Participant> restored(const std::vector<EwmhWindow>& windows, Deadline deadline);

    EwmhDesktop& m_desktop;
};

}  // namespace kinesta
