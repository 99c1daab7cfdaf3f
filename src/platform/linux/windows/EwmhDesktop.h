#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/windows/EwmhManager.h"
#include "platform/linux/windows/EwmhSnapshot.h"
#include "platform/linux/windows/I3Manager.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// Something that the window manager was asked for.
struct EwmhRequest {
    enum class Kind {
        close,
        /// To put it at `frame`.
        place,
        /// To maximize it or to make it fullscreen.
        zoom,
        /// To give it a place in the layout.
        layout,
    };
    Kind kind;
    EwmhWindowId window;
    /// Where its frame was, and where it is to be.
    WindowRectangle before{};
    WindowRectangle frame{};
};

/// What EWMH (the agreement between window managers and programs on X11) tells of windows and lets us do with them.
/// Every question costs one or a few round trips to the server and at most its timeout, in seconds; nothing is kept
/// in between. Windows may vanish and the server may go at any moment: then there is no answer. Main thread only.
class EwmhDesktop {
  public:
    static constexpr Seconds kTimeout = 0.15;

    /// `connection` must outlive this.
    explicit EwmhDesktop(X11Connection& connection) : m_connection(connection) {}

    /// Is told of everything that the window manager is asked for.
    using Observer = std::function<void(const EwmhRequest&)>;
    void setObserver(Observer observer) { m_observer = std::move(observer); }

    /// Adds what works with the window manager, if one runs.
    void addTo(DesktopFacts& facts);

    /// The process of the active window; a number below 0, the same for all windows of an X client, where the process
    /// cannot be known. Nothing if no window is active.
    std::optional<ProcessIdentifier> frontmostApplication(Seconds timeout = kTimeout);

    /// The window that has the person's attention.
    std::optional<EwmhWindow> activeWindow(Seconds timeout = kTimeout);

    std::optional<EwmhWindow> window(EwmhWindowId window, Seconds timeout = kTimeout);

    std::optional<EwmhSnapshot> snapshot(Seconds timeout = kTimeout);

    /// Asks the window manager to close a window as its close button does. False if nobody could be asked.
    bool close(EwmhWindowId window, Seconds timeout = kTimeout);

    /// The verbs below do nothing unless the question before them was answered. They send without waiting for anything;
    /// only a window manager that is asked at its own socket is waited for until it is done.

    /// Makes a window remember something for as long as it lives; an empty record makes it forget.
    void setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record);

    /// Moves a window so that its frame is at `frame`, and resizes it if the frame has another size now.
    void place(const EwmhWindow& window, const WindowRectangle& frame);

    /// Gives a window a place in the layout of a tiling window manager again. False if there is none.
    bool returnToLayout(const EwmhWindow& window);

    /// Makes a window fullscreen, or maximizes it.
    void zoom(const EwmhWindow& window, bool isFullscreen, bool isHorizontal, bool isVertical);

    /// Puts a window above all others of its kind, without making it active.
    void raise(EwmhWindowId window);

    /// Hands over what was sent.
    void flush() { m_connection.flush(); }

    /// Ends fullscreen and maximization of windows and waits until the window manager is done with it, at most the
    /// timeout.
    void restore(std::span<const EwmhWindow> windows, Seconds timeout);

  private:
    EwmhManagerQuery askManager();
    void watch(EwmhWindowId window, std::uint32_t events);
    std::optional<I3Manager> i3() const;
    void setFullscreen(EwmhWindowId window, bool isFullscreen);
    void setMaximized(EwmhWindowId window, bool isHorizontal, bool isVertical, bool isMaximized);
    void tell(const EwmhRequest& request);

    X11Connection& m_connection;
    Observer m_observer;
    /// At the last question.
    std::optional<EwmhManager> m_manager;
    EwmhWindowId m_lastActive = XCB_WINDOW_NONE;
};

}  // namespace kinesta
