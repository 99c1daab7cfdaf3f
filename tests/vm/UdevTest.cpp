#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/keyboard/UinputDevice.h"
#include "support/TemporaryFolder.h"
#include "vm/DeviceListener.h"
#include "vm/PadReading.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

/// A system with udev and Kinesta's rules. udev knows only devices that are created after its start.
struct Udev : ::testing::Test {
    Udev() {
        EXPECT_TRUE(testing::eventually([] { return std::filesystem::exists("/run/udev/control"); }));
    }
    ~Udev() override {
        daemon.signal(SIGTERM);
        daemon.waitForEnd();
        std::filesystem::remove_all("/run/udev");
    }

    /// Adds a rule and applies it to the connected input devices.
    static void addRule(const std::string& file, const std::string& rule) {
        std::filesystem::create_directories("/run/udev/rules.d");
        writeText("/run/udev/rules.d/" + file, rule + "\n");
        run("udevadm control --reload && udevadm trigger --subsystem-match=input --subsystem-match=misc");
        run("udevadm settle");
    }
    static void run(const std::string& command) { EXPECT_EQ(std::system(command.c_str()), 0) << command; }
    static bool hasProperty(const std::string& path, const std::string& property) {
        return std::system(("udevadm info -q property -n " + path + " | grep -qx " + property).c_str()) == 0;
    }

    testing::ChildProcess daemon{{"systemd-udevd"}};
};

TEST_F(Udev, RulesOpenTouchpadsAndUinputAndNothingElse) {
    // A device that has the tag here still has it when 73-seat-late.rules opens it for the user at the seat.
    addRule("72-zz-probe.rules", "TAG==\"uaccess\", ENV{IS_OPEN}=\"1\"");
    const VirtualTouchpad pad;
    const auto keyboard = UinputDevice::create();
    const std::string keyboardPath = DeviceListener().path();
    run("udevadm settle");
    EXPECT_TRUE(hasProperty(pad.path(), "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty("/dev/uinput", "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_KEYBOARD=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_MOUSE=1"));
    EXPECT_FALSE(hasProperty(keyboardPath, "IS_OPEN=1"));
}

TEST_F(Udev, SaysWhichPadIsBuiltInAndWhichToIgnore) {
    const VirtualTouchpad first({.name = "First", .bus = BUS_USB});
    const VirtualTouchpad second({.name = "Second", .bus = BUS_USB});
    run("udevadm settle");
    PadReading reading;
    EXPECT_EQ(reading.provider().state().name, "First");
    addRule("61-test.rules", "ATTRS{name}==\"Second\", ENV{ID_INPUT_TOUCHPAD_INTEGRATION}=\"internal\"");
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(reading.provider().state().name, "Second");
    addRule("61-test.rules", "SUBSYSTEM==\"input\", ENV{LIBINPUT_IGNORE_DEVICE}=\"1\"");
    EXPECT_TRUE(reading.takeUntil("No built-in trackpad was found."));  // one pad may be ignored before the other
}

}  // namespace
}  // namespace kinesta::vm
