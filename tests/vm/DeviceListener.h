#pragma once

#include <memory>
#include <string>

#include "platform/linux/process/FileDescriptor.h"
#include "vm/PadReading.h"

struct libevdev;

namespace kinesta::vm {

/// What any program sees of the keys and buttons of an input device.
class DeviceListener {
  public:
    /// There must be a device of this name.
    explicit DeviceListener(const std::string& name);

    /// "/dev/input/eventN".
    const std::string& path() const { return m_path; }

    /// The next `count` changes, such as "KEY_C down"; "gone" when the device is. Fewer if they do not come in time.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5));

  private:
    std::string m_path;
    FileDescriptor m_descriptor;
    std::unique_ptr<libevdev, void (*)(libevdev*)> m_device;
};

}  // namespace kinesta::vm
