#include "platform/linux/keyboard/UinputDevice.h"

#include <fcntl.h>
#include <linux/input.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "platform/linux/touchpad/DeviceAccess.h"

namespace kinesta {
namespace {

constexpr int kLastKey = 255;  // above it are buttons, and keys that X11 cannot have

Error creationError(int error) {
    if (error == EACCES || error == EPERM || error == ENOENT || error == ENODEV)
        return {std::string("Keys cannot be posted, for ") + UinputDevice::kPath +
                (error == ENOENT || error == ENODEV ? " does not exist" : " may not be opened") +
                "; to allow it, run: " + uinputAccessCommand()};
    return {std::string("The virtual keyboard cannot be made with ") + UinputDevice::kPath + ": " +
            std::strerror(error) + "."};
}

bool declare(int device) {
    bool isDone = ioctl(device, UI_SET_EVBIT, EV_KEY) == 0 && ioctl(device, UI_SET_EVBIT, EV_REL) == 0;
    for (int key = KEY_ESC; isDone && key <= kLastKey; ++key)
        isDone = ioctl(device, UI_SET_KEYBIT, key) == 0;
    for (const int button : {BTN_LEFT, BTN_RIGHT, BTN_MIDDLE})
        isDone = isDone && ioctl(device, UI_SET_KEYBIT, button) == 0;
    // Never moved, but without axes a desktop would not take the device for a pointer.
    for (const int axis : {REL_X, REL_Y})
        isDone = isDone && ioctl(device, UI_SET_RELBIT, axis) == 0;
    // Not USB or Bluetooth: a touchpad that turns off while a mouse is connected would turn off because of this device.
    uinput_setup setup{};
    setup.id.bustype = BUS_VIRTUAL;
    std::strncpy(setup.name, UinputDevice::kName, sizeof setup.name - 1);
    return isDone && ioctl(device, UI_DEV_SETUP, &setup) == 0 && ioctl(device, UI_DEV_CREATE) == 0;
}

input_event eventOf(std::uint16_t type, std::uint16_t code, std::int32_t value) {
    input_event event{};
    event.type = type;
    event.code = code;
    event.value = value;
    return event;
}

}  // namespace

Result<std::unique_ptr<UinputDevice>> UinputDevice::create() {
    FileDescriptor descriptor(::open(UinputDevice::kPath, O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor || !declare(descriptor.number()))
        return creationError(errno);
    return std::unique_ptr<UinputDevice>(new UinputDevice(std::move(descriptor)));
}

UinputDevice::UinputDevice(FileDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}

UinputDevice::~UinputDevice() = default;  // closing removes the device, which releases all keys

void UinputDevice::post(std::uint16_t key, bool isDown) { m_report.push_back(eventOf(EV_KEY, key, isDown ? 1 : 0)); }

Outcome UinputDevice::sync() {
    m_report.push_back(eventOf(EV_SYN, SYN_REPORT, 0));
    const std::size_t size = m_report.size() * sizeof(input_event);
    const ssize_t written = ::write(m_descriptor.number(), m_report.data(), size);
    m_report.clear();
    if (written < 0 || static_cast<std::size_t>(written) != size)
        return Error{std::string("Keys could not be posted through ") + UinputDevice::kPath + ": " +
                     std::strerror(errno) + "."};
    return success();
}

}  // namespace kinesta
