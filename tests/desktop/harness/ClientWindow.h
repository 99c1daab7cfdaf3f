#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>
#include <vector>

#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {

/// A small X client's window that says of itself what a test wants. Windows with the same connection belong to one
/// client.
class ClientWindow {
  public:
    using Connection = std::shared_ptr<xcb_connection_t>;
    static Connection connect(const TestDesktop& desktop);

    /// Makes the window, in sight only after show(). `place` is that of the window without its frame.
    ClientWindow(const TestDesktop& desktop, WindowWatch& watch, const WindowRectangle& place, Connection connection);
    ClientWindow(const TestDesktop& desktop, WindowWatch& watch, const WindowRectangle& place)
        : ClientWindow(desktop, watch, place, connect(desktop)) {}
    ClientWindow(const ClientWindow&) = delete;
    ClientWindow& operator=(const ClientWindow&) = delete;
    ~ClientWindow();

    xcb_window_t window() const { return m_window; }

    /// Sets a property of numbers, or of atoms by their names.
    ClientWindow& set(const std::string& property, xcb_atom_t type, std::vector<std::uint32_t> numbers);
    ClientWindow& setAtoms(const std::string& property, const std::vector<std::string>& names);
    ClientWindow& remove(const std::string& property);
    ClientWindow& setMachine(const std::string& name);
    /// Says which sizes it accepts.
    ClientWindow& setMinimum(WindowSize size);
    ClientWindow& setFixedSize();
    /// Says that its positions are those of the window proper, as Qt does.
    ClientWindow& setStaticGravity();
    ClientWindow& setTransientFor(xcb_window_t owner);
    ClientWindow& setGroup(xcb_window_t leader);

    /// Sets what was set on a window that is in sight; returns once the server has it.
    void send();

    /// Puts it on the screen and waits until it is managed and, unless it takes no focus, active.
    ClientWindow& show(bool becomesActive = true);

    /// Whether it was asked to close and nothing else since the last call; waits for the request.
    bool awaitCloseRequest(std::chrono::milliseconds patience = ChildProcess::kPatience);
    /// Whether it was asked to close until now.
    bool wasAskedToClose();

  private:
    bool takeCloseRequest();

    const TestDesktop& m_desktop;
    WindowWatch& m_watch;
    Connection m_connection;
    xcb_window_t m_window;
    WindowRectangle m_place;
};

}  // namespace kinesta::testing
