#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/x11/Deadline.h"

namespace kinesta {

/// What i3 and sway offer beyond EWMH, and what they do not take through EWMH. Every call waits for the answer, at most
/// until its deadline.
class I3Manager {
  public:
    explicit I3Manager(std::string socketPath) : m_socketPath(std::move(socketPath)) {}

    /// Sets the positions of windows and their frames, which X does not know here. False if no answer came.
    bool locate(std::span<EwmhWindow> windows, Deadline deadline) const;

    /// The work area of each monitor, without bars.
    std::vector<WindowRectangle> workAreas(Deadline deadline) const;

    // The functions below return whether the request was carried out.
    /// Takes a window out of the layout and puts its frame at `frame`.
    bool place(EwmhWindowId window, const WindowRectangle& frame, Deadline deadline) const;
    /// Puts a window back into the layout.
    bool returnToLayout(EwmhWindowId window, Deadline deadline) const;
    bool close(EwmhWindowId window, Deadline deadline) const;

  private:
    bool command(EwmhWindowId window, const std::string& words, Deadline deadline) const;

    std::string m_socketPath;
};

}  // namespace kinesta
