#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>
#include <vector>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// A window of the test's own X client. It has the properties that a test sets, and records the events that it gets.
/// Windows with the same connection belong to one client.
class TestWindow {
  public:
    using Connection = std::shared_ptr<xcb_connection_t>;
    static Connection connect(const TestDesktop& desktop);

    static constexpr WindowRectangle kWholeScreen{0, 0, 1280, 800};

    /// `place` is that of the window without its frame. It is hidden until show().
    TestWindow(const TestDesktop& desktop, const WindowRectangle& place, Connection connection);
    TestWindow(const TestDesktop& desktop, const WindowRectangle& place)
        : TestWindow(desktop, place, connect(desktop)) {}
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow();

    xcb_window_t id() const { return m_window; }

    /// Sets a property of numbers, of windows, or of atoms by their names.
    TestWindow& set(const std::string& property, xcb_atom_t type, std::vector<std::uint32_t> numbers);
    TestWindow& setWindow(const std::string& property, xcb_window_t window);
    TestWindow& setAtoms(const std::string& property, const std::vector<std::string>& names);
    TestWindow& setType(const std::string& type) {
        return setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_" + type});
    }
    TestWindow& setModal() { return setAtoms("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"}); }
    TestWindow& setProcess(std::int64_t process, xcb_atom_t type = XCB_ATOM_CARDINAL);
    TestWindow& setMachine(const std::string& name);
    TestWindow& setGroup(xcb_window_t leader);
    TestWindow& setSizes(WindowSize minimum, WindowSize maximum);
    /// The positions that it requests are those of the window without its frame, as with Qt.
    TestWindow& setStaticGravity();
    /// Returns once the server has the properties.
    void send() const;

    /// Shows it and waits until it is managed and, unless it takes no focus, has the keyboard focus.
    TestWindow& show(bool takesFocus = true);

    /// The next event as text: "close", or "press" or "release" of a key or button with the modifiers in force before
    /// it, as in "press Control+c" or "release Button2". Empty if none comes in time.
    std::string next();
    /// All events that have arrived.
    std::vector<std::string> events();
    /// The same, after the window manager has carried out all earlier requests.
    std::vector<std::string> eventsAfterWindowManager();
    /// Waits for the press of the key with this X keycode.
    bool waitForKey(std::uint8_t keycode);

  private:
    xcb_generic_event_t* waitForEvent() const;
    std::string describe(const xcb_generic_event_t& event) const;

    const TestDesktop& m_desktop;
    Connection m_connection;
    xcb_window_t m_window;
};

}  // namespace kinesta::testing
