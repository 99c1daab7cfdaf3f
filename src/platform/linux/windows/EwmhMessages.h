#pragma once

#include <cstdint>
#include <span>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The messages of EWMH to the window manager. They go out with the connection's next flush. Call after the server has
/// answered a query. Main thread only.
class EwmhMessages {
  public:
    explicit EwmhMessages(X11Connection& connection) : m_connection(connection) {}

    /// Needs the server's time: see X11Connection::requestServerTime().
    void close(EwmhWindowId window);
    void place(const EwmhWindow& window, const WindowRectangle& frame);
    void setFullscreen(EwmhWindowId window, bool isFullscreen);
    void setMaximized(EwmhWindowId window, bool isHorizontal, bool isVertical, bool isMaximized);
    void raise(EwmhWindowId window);
    void setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record);

    /// Ends fullscreen and maximization, and waits until the window manager has finished.
    void restore(std::span<const EwmhWindow> windows, Deadline deadline);

  private:
    void watch(EwmhWindowId window, std::uint32_t events);

    X11Connection& m_connection;
};

}  // namespace kinesta
