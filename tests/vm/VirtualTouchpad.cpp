#include "vm/VirtualTouchpad.h"

#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace kinesta::vm {
namespace {

// A pad that cannot be made is no failed expectation but a machine on which nothing can be tested.
void require(bool condition, const char* what) {
    if (!condition) {
        std::perror(what);
        std::abort();
    }
}

void enableAxis(libevdev* device, unsigned code, int maximum, int resolution = 0) {
    input_absinfo range{};
    range.maximum = maximum;
    range.resolution = resolution;
    require(libevdev_enable_event_code(device, EV_ABS, code, &range) == 0, "an axis");
}

}  // namespace

void VirtualTouchpad::Destroy::operator()(libevdev_uinput* device) const { libevdev_uinput_destroy(device); }

VirtualTouchpad::VirtualTouchpad(const PadShape& shape) {
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> device(libevdev_new(), libevdev_free);
    libevdev_set_name(device.get(), shape.name.c_str());
    libevdev_set_id_bustype(device.get(), shape.bus);
    libevdev_enable_property(device.get(), INPUT_PROP_POINTER);
    for (const auto x : {0U + ABS_X, 0U + ABS_MT_POSITION_X})
        enableAxis(device.get(), x, shape.maximumX);
    for (const auto y : {0U + ABS_Y, 0U + ABS_MT_POSITION_Y})
        enableAxis(device.get(), y, shape.maximumY);
    enableAxis(device.get(), ABS_MT_SLOT, shape.slots - 1);
    enableAxis(device.get(), ABS_MT_TRACKING_ID, 65535);
    if (shape.maximumPressure > 0)
        enableAxis(device.get(), ABS_MT_PRESSURE, shape.maximumPressure, shape.pressureResolution);
    for (const unsigned key : {0U + BTN_LEFT, 0U + BTN_RIGHT, 0U + BTN_TOUCH, 0U + BTN_TOOL_FINGER})
        libevdev_enable_event_code(device.get(), EV_KEY, key, nullptr);
    constexpr std::array kFingerKeys{BTN_TOOL_DOUBLETAP, BTN_TOOL_TRIPLETAP, BTN_TOOL_QUADTAP, BTN_TOOL_QUINTTAP};
    for (int fingers = 2; fingers <= shape.fingers; ++fingers)
        libevdev_enable_event_code(device.get(), EV_KEY,
                                   static_cast<unsigned>(kFingerKeys.at(static_cast<std::size_t>(fingers) - 2)),
                                   nullptr);
    libevdev_uinput* made = nullptr;
    require(libevdev_uinput_create_from_device(device.get(), LIBEVDEV_UINPUT_OPEN_MANAGED, &made) == 0,
            "a virtual touchpad");
    m_device.reset(made);
}

std::string VirtualTouchpad::path() const {
    const char* node = libevdev_uinput_get_devnode(m_device.get());
    return node ? node : "";
}

VirtualTouchpad& VirtualTouchpad::down(int slot, int trackingId, int x, int y) {
    add(EV_ABS, ABS_MT_SLOT, slot);
    add(EV_ABS, ABS_MT_TRACKING_ID, trackingId);
    return move(slot, x, y);
}

VirtualTouchpad& VirtualTouchpad::move(int slot, int x, int y) {
    add(EV_ABS, ABS_MT_SLOT, slot);
    add(EV_ABS, ABS_MT_POSITION_X, x);
    return add(EV_ABS, ABS_MT_POSITION_Y, y);
}

VirtualTouchpad& VirtualTouchpad::up(int slot) {
    add(EV_ABS, ABS_MT_SLOT, slot);
    return add(EV_ABS, ABS_MT_TRACKING_ID, -1);
}

VirtualTouchpad& VirtualTouchpad::pressure(int slot, int value) {
    add(EV_ABS, ABS_MT_SLOT, slot);
    return add(EV_ABS, ABS_MT_PRESSURE, value);
}

VirtualTouchpad& VirtualTouchpad::key(int code, bool isDown) { return add(EV_KEY, code, isDown ? 1 : 0); }

void VirtualTouchpad::report() {
    add(EV_SYN, SYN_REPORT, 0);
    const auto size = static_cast<ssize_t>(m_events.size() * sizeof(input_event));
    require(::write(libevdev_uinput_get_fd(m_device.get()), m_events.data(), static_cast<std::size_t>(size)) == size,
            "a report");
    m_events.clear();
}

VirtualTouchpad& VirtualTouchpad::add(int type, int code, int value) {
    input_event event{};
    event.type = static_cast<__u16>(type);
    event.code = static_cast<__u16>(code);
    event.value = value;
    m_events.push_back(event);
    return *this;
}

}  // namespace kinesta::vm
