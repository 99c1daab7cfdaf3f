#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/linux/process/FileDescriptor.h"
#include "support/Result.h"

struct input_event;

namespace kinesta {

/// A keyboard and mouse of the kernel's that Kinesta itself plays on: the way to post keys where the display system has
/// none. The device is there from creation to destruction; desktops take up to a second to notice a new one, and what
/// is posted before is lost.
class UinputDevice {
  public:
    /// What the device is called in the kernel.
    static constexpr const char* kPath = "/dev/uinput";
    static constexpr const char* kName = "Kinesta virtual keyboard and mouse";

    /// Makes the device. The error tells what is missing and the command that mends it.
    static Result<std::unique_ptr<UinputDevice>> create();
    ~UinputDevice();
    UinputDevice(const UinputDevice&) = delete;
    UinputDevice& operator=(const UinputDevice&) = delete;

    /// Adds a key or button to the next report: KEY_… from 1 to 255, BTN_LEFT, BTN_RIGHT or BTN_MIDDLE. The kernel
    /// drops what does not change the key's state.
    void post(std::uint16_t key, bool isDown);

    /// Sends the report.
    Outcome sync();

  private:
    explicit UinputDevice(FileDescriptor descriptor);

    FileDescriptor m_descriptor;
    std::vector<input_event> m_report;
};

}  // namespace kinesta
