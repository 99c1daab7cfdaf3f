#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/posix/FileDescriptor.h"
#include "support/Result.h"

struct input_event;

namespace kinesta {

/// A virtual keyboard and mouse in the kernel, for posting keys where the display system offers no way to. The device
/// exists as long as this object. Desktops take up to a second to notice a new device and miss what is posted before
/// that.
class UinputDevice {
  public:
    static constexpr const char* kPath = "/dev/uinput";
    static constexpr const char* kName = "Kinesta virtual keyboard and mouse";

    /// Makes the device. The error says what is missing and gives the command that fixes it.
    static Result<std::unique_ptr<UinputDevice>> create();
    ~UinputDevice();
    UinputDevice(const UinputDevice&) = delete;
    UinputDevice& operator=(const UinputDevice&) = delete;

    /// Adds a key or button to the next report: KEY_… from 1 to 255, BTN_LEFT, BTN_RIGHT or BTN_MIDDLE. The kernel
    /// ignores it if the key is in that state already.
    void post(std::uint16_t key, bool isDown);

    /// Sends the report.
    Outcome sync();

  private:
    explicit UinputDevice(FileDescriptor descriptor);

    FileDescriptor m_descriptor;
    std::vector<input_event> m_report;
};

}  // namespace kinesta
