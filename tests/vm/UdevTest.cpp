#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/linux/keyboard/UinputDevice.h"
#include "vm/DeviceListener.h"
#include "vm/PadReading.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

/// A system with udev, Kinesta's rules installed. Nothing is known to udev that was not made since.
class Udev : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::remove_all("/run/udev");
        std::string name = "systemd-udevd";
        char* arguments[] = {name.data(), nullptr};
        ASSERT_EQ(posix_spawn(&m_daemon, "/bin/systemd-udevd", nullptr, nullptr, arguments, environ), 0);
        while (access("/run/udev/control", F_OK) != 0)
            ASSERT_EQ(waitpid(m_daemon, nullptr, WNOHANG), 0) << "udev has ended";
    }

    void TearDown() override {
        kill(m_daemon, SIGTERM);
        waitpid(m_daemon, nullptr, 0);
        std::filesystem::remove_all("/run/udev");
    }

    /// Adds a rule and applies it to the input devices that are there.
    static void addRule(const std::string& file, const std::string& rule) {
        std::filesystem::create_directories("/run/udev/rules.d");
        std::ofstream("/run/udev/rules.d/" + file) << rule << '\n';
        run("udevadm control --reload && udevadm trigger --subsystem-match=input --subsystem-match=misc && "
            "udevadm settle");
    }

    static void run(const std::string& command) { ASSERT_EQ(std::system(command.c_str()), 0) << command; }

    static bool hasProperty(const std::string& path, const std::string& property) {
        return std::system(("udevadm info -q property -n " + path + " | grep -qx " + property).c_str()) == 0;
    }

  private:
    pid_t m_daemon = -1;
};

TEST_F(Udev, RulesOpenTouchpadsAndUinputAndNothingElse) {
    // What is tagged here is tagged when 73-seat-late.rules lets the person at the seat in.
    addRule("72-zz-probe.rules", "TAG==\"uaccess\", ENV{IS_OPEN}=\"1\"");
    const VirtualTouchpad pad;
    const auto keyboard = UinputDevice::create();
    ASSERT_TRUE(keyboard);
    const std::string keyboardPath = DeviceListener(UinputDevice::kName).path();
    run("udevadm settle");
    EXPECT_TRUE(hasProperty(pad.path(), "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty("/dev/uinput", "IS_OPEN=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_KEYBOARD=1"));
    EXPECT_TRUE(hasProperty(keyboardPath, "ID_INPUT_MOUSE=1"));
    EXPECT_FALSE(hasProperty(keyboardPath, "IS_OPEN=1"));
}

TEST_F(Udev, TellsWhichPadIsBuiltInAndWhichIsToBeIgnored) {
    const VirtualTouchpad first({.name = "First", .bus = BUS_USB});
    const VirtualTouchpad second({.name = "Second", .bus = BUS_USB});
    run("udevadm settle");
    PadReading reading;
    EXPECT_EQ(reading.provider().state().name, "First");
    addRule("61-test.rules", "ATTRS{name}==\"Second\", ENV{ID_INPUT_TOUCHPAD_INTEGRATION}=\"internal\"");
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(reading.provider().state().name, "Second");
    addRule("61-test.rules", "SUBSYSTEM==\"input\", ENV{LIBINPUT_IGNORE_DEVICE}=\"1\"");
    EXPECT_EQ(reading.take(1), (Lines{"No built-in trackpad was found."}));
}

}  // namespace
}  // namespace kinesta::vm
