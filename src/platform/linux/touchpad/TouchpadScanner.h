#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/linux/touchpad/TouchpadCandidate.h"

namespace kinesta {

/// Finds the touchpads in sysfs, which everyone may read, so that no device is opened (and woken) just to learn that it
/// is a keyboard. Reads the kernel's bitmaps instead of udev's ID_INPUT_TOUCHPAD: containers and small systems have
/// devices but no udev database.
class TouchpadScanner {
  public:
    /// A property of the udev database for an input device ("event5"), or empty.
    using Property = std::function<std::string(const std::string& eventName, const char* key)>;

    /// The real system, with udev's properties where udev runs.
    TouchpadScanner();
    TouchpadScanner(std::string inputDirectory, std::string classDirectory, Property property);

    /// The touchpads that have a device node, without those that a udev rule excludes (LIBINPUT_IGNORE_DEVICE).
    std::vector<TouchpadCandidate> scan() const;

    /// Whether a mouse is connected by USB or Bluetooth. A pointing stick does not count.
    bool hasExternalMouse() const;

  private:
    std::vector<std::string> eventNames() const;
    bool isTouchpad(const std::string& device) const;
    bool isBuiltIn(const std::string& eventName, const std::string& device) const;

    std::string m_inputDirectory;
    std::string m_classDirectory;
    Property m_property;
};

}  // namespace kinesta
