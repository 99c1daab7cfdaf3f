#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <array>
#include <filesystem>

#include "platform/linux/keyboard/UinputInputPoster.h"
#include "vm/DeviceListener.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

/// A system with udev and Kinesta's rules. udev knows only devices that are created after its start.
struct Udev : ::testing::Test {
    Udev() {
        EXPECT_TRUE(testing::eventually([] { return std::filesystem::exists("/run/udev/control"); }));
    }
    ~Udev() override {
        daemon.end(SIGTERM);
        std::filesystem::remove_all("/run/udev");
    }

    /// Adds a rule and applies it to the connected input devices.
    static void addRule(const std::string& file, const std::string& rule) {
        std::filesystem::create_directories("/run/udev/rules.d");
        writeText("/run/udev/rules.d/" + file, rule + "\n");
        EXPECT_TRUE(
            testing::run("udevadm control --reload && udevadm settle && "
                         "udevadm trigger --settle --subsystem-match=input --subsystem-match=misc"));
    }
    static bool hasProperty(const std::string& path, const std::string& property) {
        return testing::run("udevadm info -q property -n " + path + " | grep -qx " + property);
    }

    testing::ChildProcess daemon{"systemd-udevd"};
};

TEST_F(Udev, RulesOpenTouchpadsAndUinputAndNothingElse) {
    // A device that has the tag here still has it when 73-seat-late.rules opens it for the user at the seat.
    addRule("72-zz-probe.rules", "TAG==\"uaccess\", ENV{IS_OPEN}=\"1\"");
    const VirtualTouchpad pad;
    const auto keyboard = UinputDevice::create();
    const std::string keyboardPath = DeviceListener().path();
    EXPECT_TRUE(testing::run("udevadm settle"));
    EXPECT_TRUE(hasProperty(pad.path(), "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty("/dev/uinput", "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_KEYBOARD=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_MOUSE=1"));
    EXPECT_FALSE(hasProperty(keyboardPath, "IS_OPEN=1"));
}

TEST_F(Udev, SaysWhichPadIsBuiltInAndWhichToIgnore) {
    const VirtualTouchpad first({.name = "First", .bus = BUS_USB});
    const VirtualTouchpad second({.name = "Second", .bus = BUS_USB});
    EXPECT_TRUE(testing::run("udevadm settle"));
    PadReading reading;
    EXPECT_EQ(reading.provider().state().name, "First");
    addRule("61-test.rules", "ATTRS{name}==\"Second\", ENV{ID_INPUT_TOUCHPAD_INTEGRATION}=\"internal\"");
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(reading.provider().state().name, "Second");
    addRule("61-test.rules", "SUBSYSTEM==\"input\", ENV{LIBINPUT_IGNORE_DEVICE}=\"1\"");
    EXPECT_TRUE(reading.takeUntil("No built-in trackpad was found."));  // one pad may be ignored before the other
}

TEST(Uinput, SaysOnceThatItIsNotAllowedAndTriesAgain) {
    Lines log;
    std::optional<UinputInputPoster> poster;
    asOrdinaryUser([&] {
        poster.emplace([&](const std::string& line) { log.push_back(line); });
        EXPECT_FALSE(poster->isAvailable());
        EXPECT_FALSE(poster->modifiersFor(KEY_A));
        EXPECT_EQ(poster->pointerLocation(), std::nullopt);
    });
    ASSERT_EQ(log.size(), 1U);
    EXPECT_TRUE(log.front().starts_with("Keys cannot be posted, for /dev/uinput may not be opened; to")) << log.front();
    ASSERT_TRUE(poster->isAvailable()) << "now it is allowed";
    EXPECT_FALSE(poster->modifiersFor(BTN_LEFT) || poster->modifiersFor(256));
    const DeviceListener listener;
    const std::array presses{InputTransition{KEY_LEFTSHIFT, KeyTransition::down},
                             InputTransition{KEY_VOLUMEDOWN, KeyTransition::down}};
    EXPECT_TRUE(poster->post(presses));
    EXPECT_EQ(listener.take(2), (Lines{"KEY_LEFTSHIFT down", "KEY_VOLUMEDOWN down"}));
    poster.reset();
    const Lines last = listener.take(3);
    EXPECT_TRUE(!last.empty() && last.back() == "gone");
}

}  // namespace
}  // namespace kinesta::vm
