#pragma once

#include <xcb/xcb.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta::testing {

/// The folder that an environment variable names.
std::filesystem::path folderOf(const char* variable);

/// A desktop for one test: an X server without a screen, and on request a window manager and a session bus. The
/// environment then names them. One at a time. Reads windows straight from the server, without the code under test.
class TestDesktop {
  public:
    struct Options {
        bool hasWindowManager = false;
        bool hasSessionBus = false;
    };

    explicit TestDesktop(const Options& options);
    TestDesktop() : TestDesktop(Options{}) {}
    TestDesktop(const TestDesktop&) = delete;
    TestDesktop& operator=(const TestDesktop&) = delete;
    ~TestDesktop();

    /// run() waits until the program ends, start() does not.
    void run(std::vector<std::string> command) const;
    std::unique_ptr<ChildProcess> start(std::vector<std::string> command) const;

    const std::string& display() const { return m_display; }
    bool hasWindowManager() const { return m_windowManager != nullptr; }
    ChildProcess& server() { return *m_server; }
    ChildProcess& sessionBus() { return *m_bus; }
    ChildProcess& windowManager() { return *m_windowManager; }

    /// Starts and stops parts of the desktop. A server that is started again has another number.
    void startServer();
    void stopServer();
    void startSessionBus();
    void stopSessionBus() { m_bus.reset(); }
    void stopWindowManager() { m_windowManager.reset(); }

    /// Switches the keyboard layout with setxkbmap, such as to "fr" or "us,fr".
    void setLayout(const std::string& layout) const;

    /// A connection for the test, which lives as long as the server.
    xcb_connection_t* connection() const { return m_connection; }
    xcb_window_t root() const;
    xcb_atom_t atom(const std::string& name) const;
    /// The items of a 32-bit property, and whether _NET_WM_STATE has a certain atom.
    std::vector<std::uint32_t> property(xcb_window_t window, const std::string& name) const;
    bool hasState(xcb_window_t window, const std::string& state) const;

    /// The managed windows, the lowest first.
    std::vector<xcb_window_t> stacking() const { return property(root(), "_NET_CLIENT_LIST_STACKING"); }
    bool isManaged(xcb_window_t window) const;
    xcb_window_t active() const;
    /// Waits until a window of this process besides `other` is active. Returns 0 if none comes.
    xcb_window_t awaitWindowOf(pid_t process, xcb_window_t other = XCB_WINDOW_NONE) const;

    /// Sends a message to the window manager.
    void request(xcb_window_t window, const std::string& message, const std::vector<std::uint32_t>& numbers = {}) const;
    /// Each waits until the request has been carried out.
    void activate(xcb_window_t window) const;
    void addState(xcb_window_t window, const std::string& state, const std::string& second = {}) const;
    void minimize(xcb_window_t window) const;
    /// Names a window as the active one although the window manager did not activate it.
    void pretendActive(xcb_window_t window) const;
    /// Returns once the window manager has carried out all earlier requests.
    void letWindowManagerCatchUp(xcb_window_t window) const;

    /// The place of a window with its frame, and without it.
    WindowRectangle frame(xcb_window_t window) const;
    WindowRectangle client(xcb_window_t window) const;

  private:
    WindowRectangle geometry(xcb_window_t window) const;

    std::string m_display;
    std::unique_ptr<ChildProcess> m_server, m_bus, m_windowManager;
    xcb_connection_t* m_connection = nullptr;
};

}  // namespace kinesta::testing
