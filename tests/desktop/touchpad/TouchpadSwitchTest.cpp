#include "platform/linux/touchpad/TouchpadSwitch.h"

#include <gtest/gtest.h>
#include <xcb/xinput.h>

#include <filesystem>

#include "desktop/harness/TestDesktop.h"
#include "platform/linux/touchpad/DconfDatabase.h"
#include "support/DconfSample.h"
#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

constexpr const char* kKey = "/org/gnome/desktop/peripherals/touchpad/send-events";

bool changes(TouchpadSwitch& pads, int milliseconds = 5000) {
    while (testing::waitForInput(pads.fileDescriptor(), std::chrono::milliseconds(milliseconds)))
        if (pads.takeChanges())
            return true;
    return false;
}

TEST(DconfDatabase, IsReadAndNothingIsMadeOfWhatIsNone) {
    const std::string sample = dconfSample();
    EXPECT_EQ(dconfString(sample, kKey), "disabled");
    for (const char* other : {"", "/", "send-events", "/org/gnome/desktop/peripherals/touchpad/",
                              "/org/gnome/desktop/interface/cursor-size", "x/org/gnome/desktop/interface/cursor-size",
                              "/org/gnome/desktop/peripherals/touchpad/send-events/"})
        EXPECT_EQ(dconfString(sample, other), std::nullopt) << other;
    for (std::size_t size = 0; size + 1 < sample.size(); ++size)
        EXPECT_EQ(dconfString(sample.substr(0, size), kKey), std::nullopt) << size;
    // With any damaged byte, reading ends and stays within the data.
    for (std::size_t i = 0; i < sample.size(); ++i) {
        for (const int wrong : {0x00, 0x01, 0x7f, 0xff}) {
            std::string damaged = sample;
            damaged[i] = static_cast<char>(wrong);
            const auto read = dconfString(damaged, kKey);
            EXPECT_LE(read.value_or("").size(), sample.size());
        }
    }
}

TEST(TouchpadSwitching, FollowsGnomesStoredSetting) {
    const TemporaryFolder folder;
    TouchpadSwitch pads({.display = "", .dconfDirectory = folder.path().string()});
    EXPECT_EQ(pads.mode("/dev/input/event0"), SendEventsMode::enabled);
    const auto store = [&](const std::string& database) {
        const std::string file = folder.write("new", database);
        std::filesystem::rename(file, folder.path() / "user");
        EXPECT_TRUE(changes(pads));
    };
    store(dconfSample());
    EXPECT_EQ(pads.mode("/dev/input/event0"), SendEventsMode::disabled);
    std::string other = dconfSample();
    other.replace(other.find("disabled"), 8, "enabled\0", 8);
    store(other);
    EXPECT_EQ(pads.mode("/dev/input/event0"), SendEventsMode::enabled);
    EXPECT_FALSE(changes(pads, 0));

    TouchpadSwitch nothing({.display = "", .dconfDirectory = (folder.path() / "none").string()});
    EXPECT_EQ(nothing.mode("/dev/input/event0"), SendEventsMode::enabled);
}

/// Sets a property of the X server's test pointer, which plays the part of a touchpad.
void set(const kinesta::testing::TestDesktop& desktop, const char* name, const std::string& bytes) {
    constexpr std::uint16_t kTestPointer = 4;
    const std::string padded = bytes + std::string(3, '\0');  // the library reads whole words
    const auto cookie = xcb_input_xi_change_property_checked(desktop.connection(), kTestPointer, XCB_PROP_MODE_REPLACE,
                                                             8, desktop.atom(name), XCB_ATOM_INTEGER,
                                                             static_cast<std::uint32_t>(bytes.size()), padded.data());
    EXPECT_EQ(xcb_request_check(desktop.connection(), cookie), nullptr);
}

TEST(TouchpadSwitchingOnX11, FollowsTheDriversProperties) {
    kinesta::testing::TestDesktop desktop;
    set(desktop, "Device Node", "/dev/input/event5");
    TouchpadSwitch pads({.display = desktop.display(), .dconfDirectory = ""});
    const std::string pad = "/dev/input/event5";
    EXPECT_EQ(pads.mode(pad), SendEventsMode::enabled);
    const auto check = [&](const char* property, const std::string& bytes, SendEventsMode mode) {
        set(desktop, property, bytes);
        EXPECT_TRUE(changes(pads)) << property;
        EXPECT_EQ(pads.mode(pad), mode) << property;
        EXPECT_EQ(pads.mode("/dev/input/event"), SendEventsMode::enabled);
    };
    constexpr const char* kLibinput = "libinput Send Events Mode Enabled";
    const std::string off("\1\0", 2);
    const std::string on("\0\0", 2);
    check(kLibinput, off, SendEventsMode::disabled);
    check(kLibinput, on, SendEventsMode::enabled);
    check(kLibinput, std::string("\0\1", 2), SendEventsMode::disabledWithExternalMouse);
    check("Synaptics Off", "\1", SendEventsMode::disabled);
    check("Synaptics Off", "\2", SendEventsMode::disabledWithExternalMouse);  // 2: only tapping is off
    check(kLibinput, on, SendEventsMode::enabled);
    set(desktop, kLibinput, off);
    check("Device Node", std::string("/dev/input/event5\0", 18), SendEventsMode::disabled);
    desktop.stopServer();
    EXPECT_TRUE(changes(pads));
    EXPECT_EQ(pads.mode(pad), SendEventsMode::enabled);
    EXPECT_FALSE(changes(pads, 100)) << "the broken connection stays silent";
}

}  // namespace
}  // namespace kinesta
