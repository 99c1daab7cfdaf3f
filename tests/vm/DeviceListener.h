#pragma once

#include "platform/linux/process/FileDescriptor.h"
#include "vm/PadReading.h"

namespace kinesta::vm {

/// Reads the keys and buttons of the virtual keyboard as any program does.
class DeviceListener {
  public:
    DeviceListener();

    /// "/dev/input/eventN".
    const std::string& path() const { return m_path; }

    /// The next `count` changes, such as "KEY_C down", or "gone" once the device is removed. Fewer after `limit`.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5)) const;

  private:
    std::string m_path;
    FileDescriptor m_descriptor;
};

}  // namespace kinesta::vm
