#pragma once

#include <xcb/xcb.h>

#include <cstdint>

#include "desktop/harness/TestDesktop.h"

namespace kinesta::testing {

/// The keyboard that a person types on: a device of the X server other than the one through which programs post keys.
/// The server keeps the keys of the two apart, which is what makes held modifiers hard. Keys are evdev codes.
class PhysicalKeyboard {
  public:
    explicit PhysicalKeyboard(const TestDesktop& desktop);

    void press(std::uint16_t key) { send(key, true); }
    void release(std::uint16_t key) { send(key, false); }

    /// Whether any keyboard holds the key down, as the server tells its clients.
    bool isDown(std::uint16_t key) const;

  private:
    void send(std::uint16_t key, bool isDown);

    xcb_connection_t* m_connection;
    std::uint8_t m_device = 0;
    std::uint8_t m_firstEvent = 0;
};

}  // namespace kinesta::testing
