#pragma once

#include <linux/input.h>

#include <memory>
#include <string>
#include <vector>

struct libevdev_uinput;

namespace kinesta::vm {

using VirtualDevice = std::shared_ptr<libevdev_uinput>;

/// A USB mouse that is connected until the result is reset.
VirtualDevice connectMouse();

struct PadShape {
    std::string name = "Virtual Touchpad";
    int bus = BUS_I2C;
    int slots = 5;
    int fingers = 5;             // the most for which it has a key, 2 to 5
    int maximumPressure = 0;     // 0: no pressure
    int pressureResolution = 0;  // units a gram; 0: pressure is no force
};

/// A touchpad made through uinput, 1000 by 500 units, connected from construction to destruction.
class VirtualTouchpad {
  public:
    explicit VirtualTouchpad(const PadShape& shape = {});

    /// "/dev/input/eventN".
    std::string path() const;

    VirtualTouchpad& down(int slot, int trackingId, int x, int y);
    VirtualTouchpad& move(int slot, int x, int y);
    VirtualTouchpad& up(int slot);
    VirtualTouchpad& pressure(int slot, int value);
    VirtualTouchpad& key(int code, bool isDown);

    /// Sends all changes since the last report.
    void report();

    /// One finger touches the middle.
    void touch(int trackingId);
    /// Three fingers touch for 60 ms.
    void tapWithThree();

  private:
    VirtualTouchpad& add(int type, int code, int value);

    VirtualDevice m_device;
    std::vector<input_event> m_events;
};

}  // namespace kinesta::vm
