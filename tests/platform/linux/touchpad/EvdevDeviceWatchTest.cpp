#include "platform/linux/touchpad/EvdevDeviceWatch.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

class EvdevDeviceWatching : public ::testing::Test {
  protected:
    /// Whether the watch says, within `milliseconds`, that there is something to look at.
    bool isTold(int milliseconds = 5000) {
        pollfd watch{.fd = m_watch.fileDescriptor(), .events = POLLIN, .revents = 0};
        while (poll(&watch, 1, milliseconds) > 0)
            if (m_watch.takeChanges())
                return true;
        return false;
    }

    std::string input(const std::string& name) { return (m_devices.path() / "input" / name).string(); }

    TemporaryFolder m_devices;
    EvdevDeviceWatch m_watch{m_devices.path().string()};
};

TEST_F(EvdevDeviceWatching, TellsOfEveryChangeOfADeviceNode) {
    std::filesystem::create_directory(m_devices.path() / "input");
    EXPECT_TRUE(isTold());
    m_devices.write("input/event0", "");
    EXPECT_TRUE(isTold());
    EXPECT_EQ(chmod(input("event0").c_str(), 0400), 0);
    EXPECT_TRUE(isTold());
    std::filesystem::rename(input("event0"), input("event1"));
    EXPECT_TRUE(isTold());
    std::filesystem::remove(input("event1"));
    EXPECT_TRUE(isTold());

    // What is no event device is not told, wherever it is.
    std::filesystem::create_directory(m_devices.path() / "other");
    m_devices.write("event7", "");
    m_devices.write("input/mouse0", "");
    EXPECT_FALSE(isTold(300));  // nor again what was told
}

TEST_F(EvdevDeviceWatching, OutlivesTheFolder) {
    for (int round = 0; round < 3; ++round) {
        // At once, so that the end of a folder is read when the next is there already.
        std::filesystem::create_directory(m_devices.path() / "input");
        std::filesystem::remove(m_devices.path() / "input");
        std::filesystem::create_directory(m_devices.path() / "input");
        EXPECT_TRUE(isTold());
        m_devices.write("input/event0", "");
        EXPECT_TRUE(isTold()) << round;
        std::filesystem::remove_all(m_devices.path() / "input");
        EXPECT_TRUE(isTold());
    }
}

}  // namespace
}  // namespace kinesta
