#pragma once

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <sys/syscall.h>

#include <filesystem>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/keyboard/UinputDevice.h"
#include "support/TemporaryFolder.h"
#include "vm/PadReading.h"

namespace kinesta::vm {

/// Runs `work` without root's rights in the calling thread and those that it starts. Uses the raw system call, because
/// the C library's function changes all threads.
template <typename Work>
void asOrdinaryUser(Work work) {
    syscall(SYS_setresuid, 65534, 65534, 0);
    work();
    syscall(SYS_setresuid, 0, 0, 0);
}

/// Reads the keys and buttons of the virtual keyboard as any program does.
class DeviceListener {
  public:
    DeviceListener() {
        for (const auto& entry : std::filesystem::directory_iterator("/sys/class/input"))
            if (entry.path().filename().string().starts_with("event") &&
                readText(entry.path() / "device/name") == UinputDevice::kName + std::string("\n"))
                m_path = "/dev/input" / entry.path().filename();
        m_descriptor = FileDescriptor(::open(m_path.c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_TRUE(m_descriptor) << "there is no virtual keyboard";
    }

    /// "/dev/input/eventN".
    const std::string& path() const { return m_path; }

    /// The next `count` changes, such as "KEY_C down", or "gone" once the device is removed. Fewer after `limit`.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5)) const {
        Lines lines;
        input_event event{};
        while (lines.size() < count && testing::waitForInput(m_descriptor.number(), limit)) {
            if (::read(m_descriptor.number(), &event, sizeof event) < 0) {
                lines.emplace_back("gone");
                break;
            }
            if (event.type == EV_KEY)
                lines.push_back(libevdev_event_code_get_name(EV_KEY, event.code) +
                                std::string(event.value == 0 ? " up" : " down"));
        }
        return lines;
    }

  private:
    std::string m_path;
    FileDescriptor m_descriptor;
};

}  // namespace kinesta::vm
