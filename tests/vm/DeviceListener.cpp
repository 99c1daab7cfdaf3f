#include "vm/DeviceListener.h"

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <unistd.h>

#include <filesystem>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/keyboard/UinputDevice.h"
#include "support/TemporaryFolder.h"

namespace kinesta::vm {

DeviceListener::DeviceListener() {
    for (const auto& entry : std::filesystem::directory_iterator("/sys/class/input"))
        if (const std::string name = entry.path() / "device/name";
            entry.path().filename().string().starts_with("event") &&
            readText(name) == UinputDevice::kName + std::string("\n"))
            m_path = "/dev/input" / entry.path().filename();
    m_descriptor = FileDescriptor(::open(m_path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_TRUE(m_descriptor) << "there is no virtual keyboard";
}

Lines DeviceListener::take(std::size_t count, std::chrono::milliseconds limit) const {
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

}  // namespace kinesta::vm
