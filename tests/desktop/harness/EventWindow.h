#pragma once

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// What a client of the X server sees of keys and buttons: a window of its own, on a connection of its own, that has
/// the keyboard and lies under the pointer.
class EventWindow {
  public:
    explicit EventWindow(const TestDesktop& desktop);
    EventWindow(const EventWindow&) = delete;
    EventWindow& operator=(const EventWindow&) = delete;
    ~EventWindow();

    xcb_window_t window() const { return m_window; }

    /// The next key or button event as text: "press" or "release", the modifiers in force before it, as the server
    /// names them ("Shift", "Lock", "Control", "Mod1" …), joined by "+", and the name of the keysym or "Button" with
    /// its number: "press Control+c". Nothing if none comes in time.
    std::optional<std::string> next(std::chrono::milliseconds patience = ChildProcess::kPatience);

    /// Waits for the press of the key with this X keycode, passing over all before; whether it came.
    bool waitForKey(std::uint8_t keycode);

    /// Everything that came until now. Asks the server first, so that nothing which it was given before the call is
    /// missing.
    std::vector<std::string> all();

  private:
    std::optional<std::string> describe(const xcb_generic_event_t& event);
    xcb_generic_event_t* waitForEvent(std::chrono::steady_clock::time_point deadline);
    void readKeymap();

    xcb_connection_t* m_connection;
    xcb_window_t m_window;
    std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> m_context;
    std::unique_ptr<xkb_keymap, decltype(&xkb_keymap_unref)> m_keymap;
};

}  // namespace kinesta::testing
