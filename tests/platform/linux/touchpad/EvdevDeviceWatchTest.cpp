#include "platform/linux/touchpad/EvdevDeviceWatch.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

struct EvdevDeviceWatching : ::testing::Test {
    /// Whether the watch reports a change within `milliseconds`.
    bool seesChange(int milliseconds = 5000) {
        pollfd input{.fd = watch.fileDescriptor(), .events = POLLIN, .revents = 0};
        while (poll(&input, 1, milliseconds) > 0)
            if (watch.takeChanges())
                return true;
        return false;
    }

    TemporaryFolder devices;
    EvdevDeviceWatch watch{devices.path().string()};
};

TEST_F(EvdevDeviceWatching, ReportsEveryChangeOfADeviceNode) {
    std::filesystem::create_directory(devices / "input");
    EXPECT_TRUE(seesChange());
    devices.write("input/event0", "");
    EXPECT_TRUE(seesChange());
    EXPECT_EQ(chmod((devices / "input/event0").c_str(), 0400), 0);
    EXPECT_TRUE(seesChange());
    std::filesystem::rename(devices / "input/event0", devices / "input/event1");
    EXPECT_TRUE(seesChange());
    std::filesystem::remove(devices / "input/event1");
    EXPECT_TRUE(seesChange());

    for (const char* other : {"other", "event7", "input/mouse0"})
        devices.write(other, "");
    EXPECT_FALSE(seesChange(300));
}

TEST_F(EvdevDeviceWatching, OutlivesTheFolder) {
    for (int round = 0; round < 3; ++round) {
        // At once, so that the second folder already exists when the watch reads that the first was removed.
        std::filesystem::create_directory(devices / "input");
        std::filesystem::remove(devices / "input");
        std::filesystem::create_directory(devices / "input");
        EXPECT_TRUE(seesChange());
        devices.write("input/event0", "");
        EXPECT_TRUE(seesChange()) << round;
        std::filesystem::remove_all(devices / "input");
        EXPECT_TRUE(seesChange());
    }
}

}  // namespace
}  // namespace kinesta
