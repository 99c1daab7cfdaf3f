#pragma once

#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>
#include <linux/input.h>
#include <poll.h>

#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace kinesta::vm {

using VirtualDevice = std::shared_ptr<libevdev_uinput>;

inline void require(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

inline VirtualDevice connect(const std::string& name, int bus, const std::function<void(libevdev*)>& describe) {
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> device(libevdev_new(), libevdev_free);
    libevdev_set_name(device.get(), name.c_str());
    libevdev_set_id_bustype(device.get(), bus);
    describe(device.get());
    libevdev_uinput* made = nullptr;
    require(libevdev_uinput_create_from_device(device.get(), LIBEVDEV_UINPUT_OPEN_MANAGED, &made) == 0, "no device");
    return {made, libevdev_uinput_destroy};
}

inline void enableAxis(libevdev* device, int code, int maximum, int resolution = 0) {
    input_absinfo range{};
    range.maximum = maximum;
    range.resolution = resolution;
    require(libevdev_enable_event_code(device, EV_ABS, static_cast<unsigned>(code), &range) == 0, "no axis");
}

inline void enableKey(libevdev* device, int code) {
    libevdev_enable_event_code(device, EV_KEY, static_cast<unsigned>(code), nullptr);
}

/// A USB mouse that is connected until the result is reset.
inline VirtualDevice connectMouse() {
    return connect("Mouse", BUS_USB, [](libevdev* device) {
        libevdev_enable_event_code(device, EV_REL, REL_X, nullptr);
        libevdev_enable_event_code(device, EV_REL, REL_Y, nullptr);
        enableKey(device, BTN_LEFT);
    });
}

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
    explicit VirtualTouchpad(const PadShape& shape = {})
        : m_device(connect(shape.name, shape.bus, [&shape](libevdev* device) {
              libevdev_enable_property(device, INPUT_PROP_POINTER);
              for (const int x : {ABS_X, ABS_MT_POSITION_X})
                  enableAxis(device, x, 1000);
              for (const int y : {ABS_Y, ABS_MT_POSITION_Y})
                  enableAxis(device, y, 500);
              enableAxis(device, ABS_MT_SLOT, shape.slots - 1);
              enableAxis(device, ABS_MT_TRACKING_ID, 65535);
              if (shape.maximumPressure > 0)
                  enableAxis(device, ABS_MT_PRESSURE, shape.maximumPressure, shape.pressureResolution);
              for (const int key : {BTN_LEFT, BTN_RIGHT, BTN_TOUCH, BTN_TOOL_FINGER})
                  enableKey(device, key);
              constexpr std::array kFingerKeys{BTN_TOOL_DOUBLETAP, BTN_TOOL_TRIPLETAP, BTN_TOOL_QUADTAP,
                                               BTN_TOOL_QUINTTAP};
              for (int fingers = 2; fingers <= shape.fingers; ++fingers)
                  enableKey(device, kFingerKeys.at(static_cast<std::size_t>(fingers) - 2));
          })) {}

    /// "/dev/input/eventN".
    std::string path() const { return libevdev_uinput_get_devnode(m_device.get()); }

    VirtualTouchpad& down(int slot, int trackingId, int x, int y) {
        add(EV_ABS, ABS_MT_SLOT, slot).add(EV_ABS, ABS_MT_TRACKING_ID, trackingId);
        return move(slot, x, y);
    }
    VirtualTouchpad& move(int slot, int x, int y) {
        return add(EV_ABS, ABS_MT_SLOT, slot).add(EV_ABS, ABS_MT_POSITION_X, x).add(EV_ABS, ABS_MT_POSITION_Y, y);
    }
    VirtualTouchpad& up(int slot) { return add(EV_ABS, ABS_MT_SLOT, slot).add(EV_ABS, ABS_MT_TRACKING_ID, -1); }
    VirtualTouchpad& pressure(int slot, int value) {
        return add(EV_ABS, ABS_MT_SLOT, slot).add(EV_ABS, ABS_MT_PRESSURE, value);
    }
    VirtualTouchpad& key(int code, bool isDown) { return add(EV_KEY, code, isDown ? 1 : 0); }

    /// Readers get all changes since the last report.
    void report() { add(EV_SYN, SYN_REPORT, 0); }

    /// One finger touches the middle.
    void touch(int trackingId) {
        down(0, trackingId, 500, 250).report();
        up(0).report();
    }
    /// Three fingers touch for 60 ms.
    void tapWithThree() {
        down(0, 1, 300, 250).down(1, 2, 450, 250).down(2, 3, 600, 250).report();
        ::poll(nullptr, 0, 60);
        up(0).up(1).up(2).report();
    }

  private:
    VirtualTouchpad& add(unsigned type, int code, int value) {
        require(libevdev_uinput_write_event(m_device.get(), type, static_cast<unsigned>(code), value) == 0, "no event");
        return *this;
    }

    VirtualDevice m_device;
};

}  // namespace kinesta::vm
