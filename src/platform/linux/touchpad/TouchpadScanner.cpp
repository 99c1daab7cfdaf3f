#include "platform/linux/touchpad/TouchpadScanner.h"

#include <libudev.h>
#include <linux/input.h>

#include <algorithm>
#include <charconv>
#include <climits>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

namespace kinesta {
namespace {

std::string firstLine(const std::string& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

unsigned long hexadecimal(std::string_view text) {
    unsigned long value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value, 16);
    return value;
}

/// A bit of a bitmap as sysfs prints it: words of the kernel's `long`, the highest first, leading zeros left out.
bool hasBit(std::string_view bitmap, unsigned bit) {
    constexpr unsigned kWordBits = sizeof(unsigned long) * CHAR_BIT;
    for (unsigned word = bit / kWordBits; word > 0; --word) {
        const std::size_t space = bitmap.rfind(' ');
        if (space == std::string_view::npos)
            return false;
        bitmap = bitmap.substr(0, space);
    }
    const std::size_t space = bitmap.rfind(' ');
    const std::string_view lowest = space == std::string_view::npos ? bitmap : bitmap.substr(space + 1);
    return (hexadecimal(lowest) >> (bit % kWordBits) & 1) != 0;
}

std::string udevProperty(const std::string& eventName, const char* key) {
    const std::unique_ptr<udev, decltype(&udev_unref)> context(udev_new(), udev_unref);
    if (!context)
        return {};
    const std::unique_ptr<udev_device, decltype(&udev_device_unref)> device(
        udev_device_new_from_subsystem_sysname(context.get(), "input", eventName.c_str()), udev_device_unref);
    const char* value = device ? udev_device_get_property_value(device.get(), key) : nullptr;
    return value ? value : "";
}

}  // namespace

TouchpadScanner::TouchpadScanner() : TouchpadScanner("/dev/input", "/sys/class/input", udevProperty) {}

TouchpadScanner::TouchpadScanner(std::string inputDirectory, std::string classDirectory, Property property)
    : m_inputDirectory(std::move(inputDirectory)),
      m_classDirectory(std::move(classDirectory)),
      m_property(std::move(property)) {}

std::vector<TouchpadCandidate> TouchpadScanner::scan() const {
    std::vector<TouchpadCandidate> candidates;
    for (const std::string& eventName : eventNames()) {
        const std::string path = m_inputDirectory + '/' + eventName;
        const std::string device = m_classDirectory + '/' + eventName + "/device";
        std::error_code ignored;  // a device may vanish at any time; then it is not listed
        if (!std::filesystem::exists(path, ignored) || !isTouchpad(device) ||
            m_property(eventName, "LIBINPUT_IGNORE_DEVICE") == "1")
            continue;
        candidates.push_back({.path = path,
                              .inputName = std::filesystem::canonical(device, ignored).filename().string(),
                              .name = firstLine(device + "/name"),
                              .isBuiltIn = isBuiltIn(eventName, device)});
    }
    return candidates;
}

bool TouchpadScanner::hasExternalMouse() const {
    const std::vector<std::string> names = eventNames();
    return std::any_of(names.begin(), names.end(), [this](const std::string& eventName) {
        const std::string device = m_classDirectory + '/' + eventName + "/device";
        const std::string axes = firstLine(device + "/capabilities/rel");
        const unsigned long bus = hexadecimal(firstLine(device + "/id/bustype"));
        return (bus == BUS_USB || bus == BUS_BLUETOOTH) && hasBit(axes, REL_X) && hasBit(axes, REL_Y) &&
               hasBit(firstLine(device + "/capabilities/key"), BTN_LEFT) &&
               !hasBit(firstLine(device + "/properties"), INPUT_PROP_POINTING_STICK);
    });
}

/// "event0" and so on: all input devices.
std::vector<std::string> TouchpadScanner::eventNames() const {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(m_classDirectory, error), end; !error && entry != end;
         entry.increment(error))
        if (entry->path().filename().string().starts_with("event"))
            names.push_back(entry->path().filename().string());
    return names;
}

bool TouchpadScanner::isTouchpad(const std::string& device) const {
    const std::string keys = firstLine(device + "/capabilities/key");
    const std::string axes = firstLine(device + "/capabilities/abs");
    // A tablet's touch surface has a finger tool too; a touch screen has it and is direct.
    return hasBit(keys, BTN_TOOL_FINGER) && !hasBit(keys, BTN_TOOL_PEN) && !hasBit(keys, BTN_STYLUS) &&
           !hasBit(firstLine(device + "/properties"), INPUT_PROP_DIRECT) &&
           ((hasBit(axes, ABS_MT_POSITION_X) && hasBit(axes, ABS_MT_POSITION_Y)) ||
            (hasBit(axes, ABS_X) && hasBit(axes, ABS_Y)));
}

bool TouchpadScanner::isBuiltIn(const std::string& eventName, const std::string& device) const {
    const std::string integration = m_property(eventName, "ID_INPUT_TOUCHPAD_INTEGRATION");
    if (!integration.empty())
        return integration == "internal";
    switch (hexadecimal(firstLine(device + "/id/bustype"))) {
        case BUS_I8042:
        case BUS_I2C:
        case BUS_SPI:
        case BUS_RMI:
        case BUS_HOST:
            return true;
        default:
            return false;
    }
}

}  // namespace kinesta
