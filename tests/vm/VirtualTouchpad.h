#pragma once

#include <linux/input.h>

#include <memory>
#include <string>
#include <vector>

struct libevdev_uinput;

namespace kinesta::vm {

/// What a virtual pad is made like. The ranges make round fractions of round numbers.
struct PadShape {
    std::string name = "Virtual Touchpad";
    int bus = BUS_I2C;
    int slots = 5;
    /// Fingers that are told by a key of their own, 2 to 5; those beyond the slots have no place.
    int fingers = 5;
    int maximumX = 1000;
    int maximumY = 500;
    /// Units of force per gram; 0 makes a pad that cannot tell pressure.
    int pressureResolution = 0;
    /// ABS_MT_PRESSURE is declared if above 0, with or without a resolution.
    int maximumPressure = 0;
};

/// A touchpad of the kernel's, made through uinput: present from construction to destruction.
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

    /// Sends what was said since the last report, as one report.
    void report();

  private:
    struct Destroy {
        void operator()(libevdev_uinput* device) const;
    };

    VirtualTouchpad& add(int type, int code, int value);

    std::unique_ptr<libevdev_uinput, Destroy> m_device;
    std::vector<input_event> m_events;
};

}  // namespace kinesta::vm
