#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/x11/Deadline.h"

namespace kinesta {

/// What i3 and sway tell and do that goes beyond the desktop standard, or that they do not take the standard way. Every
/// call waits for the answer, at most until its deadline.
class I3Manager {
  public:
    explicit I3Manager(std::string socketPath) : m_socketPath(std::move(socketPath)) {}

    /// Sets where the windows are, frames included, which X does not know here. False if nobody answered.
    bool locate(std::span<EwmhWindow> windows, Deadline deadline) const;

    /// What bars leave of each monitor.
    std::vector<WindowRectangle> workAreas(Deadline deadline) const;

    // Each whether it was done.
    /// Takes a window out of the layout and puts its frame there.
    bool place(EwmhWindowId window, const WindowRectangle& frame, Deadline deadline) const;
    /// Gives a window a place in the layout again.
    bool returnToLayout(EwmhWindowId window, Deadline deadline) const;
    bool close(EwmhWindowId window, Deadline deadline) const;

  private:
    bool command(EwmhWindowId window, const std::string& words, Deadline deadline) const;

    std::string m_socketPath;
};

}  // namespace kinesta
