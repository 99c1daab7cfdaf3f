#pragma once

#include <xcb/xcb.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {

/// The folder that a variable of the environment names.
std::filesystem::path folderOf(const char* variable);

/// A desktop of a test's own: an X server without a screen to look at, and on request a window manager and a session
/// bus, which the environment names from then on. One at a time; its parts end with it, by their process numbers.
class TestDesktop {
  public:
    struct Options {
        /// What the screen measures, in pixels and bits.
        std::string screen = "1280x800x24";
        bool hasWindowManager = false;
        bool hasSessionBus = false;
    };

    TestDesktop();
    explicit TestDesktop(const Options& options);
    TestDesktop(const TestDesktop&) = delete;
    TestDesktop& operator=(const TestDesktop&) = delete;
    ~TestDesktop();

    /// The name of the display, as in DISPLAY.
    const std::string& display() const { return m_display; }

    /// A connection that the test may use as it likes; lives as long as the X server.
    xcb_connection_t* connection() const { return m_connection; }
    xcb_screen_t* screen() const;
    xcb_window_t root() const { return screen()->root; }
    xcb_atom_t atom(const std::string& name) const;

    /// The first item of a property of 32-bit items, if it is there.
    std::optional<std::uint32_t> property(xcb_window_t window, const std::string& name) const;

    /// Gives the keyboard to a window that is there or on its way; whether it has it.
    bool bringToKeyboard(xcb_window_t window) const;

    /// Switches the keyboard layout as a person does: setxkbmap with these words, such as "fr" or "us,fr".
    void setLayout(const std::string& layout);

    /// Ends the X server, as a crash or a logout would; the connection here is lost with it.
    void stopServer();

    /// Stops the X server from answering, and lets it answer again.
    void freezeServer() const;
    void thawServer() const;

    /// Starts an X server again, under a name of its own, which DISPLAY then tells.
    void startServer();

    /// Ends the window manager, or the session bus.
    void stopWindowManager() { m_windowManager.reset(); }
    void stopSessionBus() { m_bus.reset(); }

    /// The session bus. Only if there is one.
    ChildProcess& sessionBus() { return *m_bus; }

    /// Starts a session bus, which the environment then names.
    void startSessionBus();

    /// Starts one more program on this desktop's displays and bus.
    std::unique_ptr<ChildProcess> run(std::vector<std::string> command) const;

  private:
    void startWindowManager();

    std::string m_screen;
    std::string m_display;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_bus;
    std::unique_ptr<ChildProcess> m_windowManager;
    xcb_connection_t* m_connection = nullptr;
};

}  // namespace kinesta::testing
