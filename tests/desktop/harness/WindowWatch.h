#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <string>
#include <vector>

#include "desktop/harness/TestDesktop.h"
#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta::testing {

/// Sees windows as the server knows them, apart from the code under test, and waits for what happens to them.
class WindowWatch {
  public:
    explicit WindowWatch(const TestDesktop& desktop);
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;
    ~WindowWatch();

    /// Waits until `condition` holds; asked again whenever something happened to any managed window.
    bool await(const std::function<bool()>& condition, std::chrono::milliseconds patience = ChildProcess::kPatience);

    /// The managed windows, the lowest first.
    std::vector<xcb_window_t> stacking() const { return windows(m_desktop.root(), "_NET_CLIENT_LIST_STACKING"); }
    bool isManaged(xcb_window_t window) const;
    xcb_window_t active() const { return m_desktop.property(m_desktop.root(), "_NET_ACTIVE_WINDOW").value_or(0); }

    /// Waits until the only window of a process but `besides` is there and active; 0 if it does not come.
    xcb_window_t awaitWindowOf(pid_t process, xcb_window_t besides = XCB_WINDOW_NONE);
    bool awaitActive(xcb_window_t window);

    /// Makes the window manager activate a window, as a click on a task bar does, and waits until it has.
    void activate(xcb_window_t window);
    /// Makes the desktop say that a window is active, although openbox did not make it so.
    void pretendActive(xcb_window_t window);
    /// Sends a message to the window manager.
    void tell(xcb_window_t window, const std::string& message, std::vector<std::uint32_t> numbers);
    /// Adds a state such as "_NET_WM_STATE_HIDDEN", and waits until it is there.
    void addState(xcb_window_t window, const std::string& state, const std::string& second = {});
    bool hasState(xcb_window_t window, const std::string& state) const;
    /// Minimizes a window and waits until it is.
    void minimize(xcb_window_t window);

    /// Returns once the window manager has done all that it was asked for before, seen by a harmless state of a window.
    void letWindowManagerCatchUp(xcb_window_t window);

    /// What the window manager's frame around a window occupies.
    WindowRectangle frame(xcb_window_t window) const;
    /// What the window itself occupies.
    WindowRectangle client(xcb_window_t window) const;

  private:
    std::vector<xcb_window_t> windows(xcb_window_t window, const std::string& property) const;
    WindowRectangle geometry(xcb_window_t window) const;
    void watchAll();

    const TestDesktop& m_desktop;
    xcb_connection_t* m_connection;
};

}  // namespace kinesta::testing
