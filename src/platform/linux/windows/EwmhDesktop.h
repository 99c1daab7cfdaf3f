#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/windows/EwmhManager.h"
#include "platform/linux/windows/EwmhMessages.h"
#include "platform/linux/windows/EwmhSnapshot.h"
#include "platform/linux/windows/I3Manager.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// A request to the window manager.
struct EwmhRequest {
    enum class Kind {
        close,
        /// Put the window at `frame`.
        place,
        /// Maximize it or make it fullscreen.
        zoom,
        /// Give it a place in the layout.
        layout,
    };
    Kind kind;
    EwmhWindowId window;
    /// Where the window's frame was, and where it should go.
    WindowRectangle before{};
    WindowRectangle frame{};
};

/// Reads and controls windows through EWMH, the standard that window managers and programs on X11 share.
///
/// Each query takes one or a few round trips to the server and at most its timeout, in seconds. Answers are not cached.
/// Windows may vanish and the server may end at any moment; queries then return nothing. Main thread only.
class EwmhDesktop {
  public:
    static constexpr Seconds kTimeout = 0.15;

    /// `connection` must outlive this.
    explicit EwmhDesktop(X11Connection& connection) : m_connection(connection) {}

    /// Called with every request to the window manager.
    using Observer = std::function<void(const EwmhRequest&)>;
    void setObserver(Observer observer) { m_observer = std::move(observer); }

    /// Adds what the window manager can do, if one runs.
    void addTo(DesktopFacts& facts);

    /// The process of the active window. If the process is unknown, a negative number that is the same for all windows
    /// of an X client. Nothing if no window is active.
    std::optional<ProcessIdentifier> frontmostApplication(Seconds timeout = kTimeout);

    /// The window that has the keyboard focus, according to the window manager.
    std::optional<EwmhWindow> activeWindow(Seconds timeout = kTimeout);

    std::optional<EwmhWindow> window(EwmhWindowId window, Seconds timeout = kTimeout);

    std::optional<EwmhSnapshot> snapshot(Seconds timeout = kTimeout);

    /// Asks the window manager to close a window as its close button does. False if the request could not be made.
    bool close(EwmhWindowId window, Seconds timeout = kTimeout);

    /// The functions below do nothing unless the server answered the query before them. They send their requests
    /// without waiting. Only a window manager with a socket of its own is waited for until it has finished.

    /// Stores a record with a window for as long as the window lives; an empty record removes it.
    void setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record);

    /// Moves a window so that its frame is at `frame`, and resizes it if its frame has another size.
    void place(const EwmhWindow& window, const WindowRectangle& frame);

    /// Puts a window back into the layout of a tiling window manager. False if that was not done.
    bool returnToLayout(const EwmhWindow& window);

    /// Makes a window fullscreen, or maximizes it.
    void zoom(const EwmhWindow& window, bool isFullscreen, bool isHorizontal, bool isVertical);

    /// Puts a window above all others of its kind, without making it active.
    void raise(EwmhWindowId window);

    /// Sends the requests so far.
    void flush() { m_connection.flush(); }

    /// Ends fullscreen and maximization of windows and waits until the window manager has finished, at most `timeout`
    /// seconds.
    void restore(std::span<const EwmhWindow> windows, Seconds timeout);

  private:
    EwmhManagerQuery askManager();
    std::optional<I3Manager> i3() const;
    void tell(const EwmhRequest& request);

    X11Connection& m_connection;
    EwmhMessages m_messages{m_connection};
    Observer m_observer;
    /// From the last query.
    std::optional<EwmhManager> m_manager;
    EwmhWindowId m_lastActive = XCB_WINDOW_NONE;
};

}  // namespace kinesta
