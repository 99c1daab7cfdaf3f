#pragma once

#include <cstdint>
#include <string>

#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// What desktops let the user choose for a touchpad.
enum class SendEventsMode { enabled, disabled, disabledWithExternalMouse };

/// Whether an X server's input drivers have a touchpad switched off, by the desktop's settings, a key or a script. Has
/// its own connection: the thread that reads the touchpad sleeps until this is readable.
class X11TouchpadProperties {
  public:
    /// `display` as in DISPLAY. Without such a display, or once it is gone, everything counts as enabled.
    explicit X11TouchpadProperties(const std::string& display);

    /// Becomes readable when takeChanges() has something to do; -1 without a display.
    int fileDescriptor() const;

    /// Whether a device has changed since the last call.
    bool takeChanges();

    /// The mode of the device that the server reads from this node ("/dev/input/event5").
    SendEventsMode mode(const std::string& path);

  private:
    bool isConnected() const;
    bool hasNews();
    SendEventsMode presentMode(const std::string& path);
    std::uint32_t atom(const char* name);
    std::string property(std::uint16_t device, std::uint32_t atom);

    X11Connection m_connection;
    std::uint64_t m_changes = 0;
    SendEventsMode m_mode = SendEventsMode::enabled;
    std::uint32_t m_deviceNode = 0;
    std::uint32_t m_deviceEnabled = 0;
    std::uint32_t m_libinputSendEvents = 0;
    std::uint32_t m_synapticsOff = 0;
};

}  // namespace kinesta
