#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

#include "desktop/harness/ProcessFigures.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "support/Sanitized.h"
#include "vm/DeviceListener.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

using namespace testing;

constexpr const char* kRules = R"([
  {"id":"00000000-0000-4000-8000-000000000001","name":"","isEnabled":true,"fingerCount":3,"gesture":"singleTap",
   "action":{"kind":"middleClick","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000002","name":"","isEnabled":true,"fingerCount":2,"gesture":"singleClick",
   "action":{"kind":"keyboardShortcut","keyCode":8,"modifiers":1,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000003","name":"","isEnabled":true,"fingerCount":2,"gesture":"edgeSlide",
   "action":{"kind":"adjustVolume","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000005","name":"","isEnabled":true,"fingerCount":3,"gesture":"singleForceClick",
   "action":{"kind":"keyboardShortcut","keyCode":9,"modifiers":1,"value":""}}
])";

/// Gestures take as long here as on a real pad.
void rest(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

struct Daemon : ::testing::Test {
    Daemon() {
        writeText("rules.json", kRules);
        EXPECT_TRUE(run("kinesta rules import rules.json >/dev/null"));
    }
};

TEST_F(Daemon, PerformsWhatTheFingersMean) {
    const PadShape shape{.maximumPressure = 1000, .pressureResolution = 10};
    auto pad = std::make_unique<VirtualTouchpad>(shape);
    ChildProcess daemon("kinesta daemon");
    ASSERT_TRUE(daemon.says("Trackpad listening: Virtual Touchpad"));
    const DeviceListener desktop;
    pad->touch(1);
    pad.reset();
    ASSERT_TRUE(daemon.says("No built-in trackpad was found."));
    pad = std::make_unique<VirtualTouchpad>(shape);
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    pad->touch(2);

    rest(500);
    const ProcessFigures before = ProcessFigures(daemon.pid());
    rest(2000);
    const ProcessFigures idle = ProcessFigures(daemon.pid());
    EXPECT_EQ(idle.sleeps, before.sleeps) << "idle, it must not wake at all";
    EXPECT_LE(idle.cpuHundredths, before.cpuHundredths + 1) << "nor spin";
    EXPECT_TRUE(kIsSanitized || idle.residentKilobytes < 10240) << idle.residentKilobytes;

    pad->tapWithThree();
    EXPECT_EQ(desktop.take(2), (Lines{"BTN_MIDDLE down", "BTN_MIDDLE up"}));
    EXPECT_TRUE(daemon.says("3-finger single tap  →  Middle click"));

    pad->down(0, 11, 400, 250).down(1, 12, 550, 250).report();
    rest(50);
    pad->key(BTN_LEFT, true).report();
    rest(50);
    pad->key(BTN_LEFT, false).report();
    pad->up(0).up(1).report();
    EXPECT_EQ(desktop.take(4), (Lines{"KEY_LEFTCTRL down", "KEY_C down", "KEY_C up", "KEY_LEFTCTRL up"}));

    pad->down(0, 21, 800, 300).down(1, 22, 900, 300).report();
    for (const int y : {280, 265}) {  // upward by 0.07 of the pad: 2 steps of 0.025
        rest(20);
        pad->move(0, 800, y).move(1, 900, y).report();
    }
    pad->up(0).up(1).report();
    EXPECT_EQ(desktop.take(4), (Lines{"KEY_VOLUMEUP down", "KEY_VOLUMEUP up", "KEY_VOLUMEUP down", "KEY_VOLUMEUP up"}));

    for (const int force : {300, 900}) {
        rest(500);
        pad->down(0, 1, 300, 250).down(1, 2, 450, 250).down(2, 3, 600, 250).report();
        rest(30);
        pad->key(BTN_LEFT, true).report();
        pad->pressure(0, force).report();
        rest(30);
        pad->pressure(0, 100).key(BTN_LEFT, false).report();
        pad->up(0).up(1).up(2).report();
        EXPECT_TRUE(daemon.says(force < 600 ? "3-finger single soft click (stage 1)  →  nothing"
                                            : "3-finger single force click (stage 2)  →  ⌘V"));
    }
    EXPECT_EQ(desktop.take(4), (Lines{"KEY_LEFTCTRL down", "KEY_V down", "KEY_V up", "KEY_LEFTCTRL up"}));

    EXPECT_EQ(daemon.end(SIGTERM), 0);
    EXPECT_EQ(desktop.take(1), (Lines{"gone"}));
}

TEST_F(Daemon, NeitherMisfiresNorStaysDeafAfterLostEvents) {
    VirtualTouchpad pad;
    ChildProcess daemon("kinesta daemon");
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    const DeviceListener desktop;
    daemon.signal(SIGSTOP);
    for (int i = 0; i < 200; ++i) {  // taps, more than the kernel keeps for a reader
        pad.down(0, 3 * i, 300, 250).down(1, 3 * i + 1, 450, 250).down(2, 3 * i + 2, 600, 250).report();
        pad.up(0).up(1).up(2).report();
    }
    pad.down(0, 700, 300, 250).report();
    daemon.signal(SIGCONT);
    rest(700);  // longer than an action waits
    pad.up(0).report();
    EXPECT_LE(desktop.take(3, kMoment).size(), 2U) << "no clicks for lost events";
    pad.tapWithThree();
    EXPECT_EQ(desktop.take(2), (Lines{"BTN_MIDDLE down", "BTN_MIDDLE up"}));
}

TEST_F(Daemon, KeepsNothingOverThousandsOfActions) {
    VirtualTouchpad pad;
    ChildProcess daemon("kinesta daemon");
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    std::optional<ProcessFigures> first;
    constexpr int kActionsARound = 500;
    for (int round = 0; round <= 4; ++round) {
        pad.down(0, 2 * round, 50, 250).down(1, 2 * round + 1, 150, 250).report();
        std::thread fingers([&pad] {
            for (int i = 0; i < kActionsARound; ++i) {  // up and down by 0.05: two steps each
                rest(1);
                const int y = i % 2 == 0 ? 225 : 250;
                pad.move(0, 50, y).move(1, 150, y).report();
            }
        });
        int actions = 0;
        while (actions < kActionsARound && daemon.says("2-finger left edge slide", std::chrono::seconds(2)))
            ++actions;
        fingers.join();
        pad.up(0).up(1).report();
        ASSERT_GE(actions, kActionsARound * 9 / 10) << round;
        if (!first)
            first = ProcessFigures(daemon.pid());
    }
    const ProcessFigures last = ProcessFigures(daemon.pid());
    EXPECT_EQ(last.descriptors, first->descriptors);
    EXPECT_TRUE(kIsSanitized || last.residentKilobytes <= first->residentKilobytes + 128) << last.residentKilobytes;
}

TEST_F(Daemon, FollowsTheChoiceOfThePadAndTheRules) {
    VirtualTouchpad first({.name = "First Pad"});
    VirtualTouchpad second({.name = "Second Pad", .bus = BUS_USB});
    ChildProcess daemon("kinesta daemon");
    ASSERT_TRUE(daemon.says("Trackpad listening: First Pad"));
    FileUserDefaults(FileUserDefaults::defaultPath(), {}).setString("linux.touchpad.v1", "Second Pad");
    ASSERT_TRUE(daemon.says("Trackpad listening: Second Pad"));
    first.tapWithThree();
    second.tapWithThree();
    EXPECT_TRUE(daemon.says("4 of 4 rules are on."));
    EXPECT_TRUE(daemon.says("3-finger single tap  →  Middle click"));
    writeText("none.json", "[]");
    ASSERT_TRUE(run("kinesta rules import none.json >/dev/null"));
    ASSERT_TRUE(daemon.says("0 of 0 rules are on."));
    second.tapWithThree();
    EXPECT_TRUE(daemon.says("3-finger single tap  →  nothing: no rule is bound to it"));
}

TEST_F(Daemon, LeavesAValidRecordingWhenKilled) {
    VirtualTouchpad pad;
    for (const int signal : {SIGKILL, SIGTERM}) {
        ChildProcess record("kinesta record -o pad.jsonl");
        const auto waitForLines = [](std::ptrdiff_t count) {
            return eventually([count] {
                std::ifstream stream("pad.jsonl");
                return std::count(std::istreambuf_iterator<char>(stream), {}, '\n') >= count;
            });
        };
        ASSERT_TRUE(waitForLines(1));
        pad.tapWithThree();
        ASSERT_TRUE(waitForLines(3));
        record.end(signal);
        EXPECT_TRUE(run(R"(kinesta replay --json pad.jsonl | grep -q '"gesture":"singleTap","fingers":3')"));
        std::filesystem::remove("pad.jsonl");
    }
}

TEST_F(Daemon, DoctorKnowsHowManyFingersThePadReports) {
    for (const int fingers : {2, 3}) {
        const VirtualTouchpad pad({.slots = 2, .fingers = fingers, .maximumPressure = 1000, .pressureResolution = 10});
        EXPECT_EQ(run("kinesta doctor > said"), fingers == 3);
        EXPECT_EQ(run("grep 'reports at most 2 fingers at once.' said"), fingers == 2);
    }
}

TEST_F(Daemon, MonitorPerformsNothingAndDoctorIsContent) {
    VirtualTouchpad pad({.maximumPressure = 1000, .pressureResolution = 10});
    EXPECT_TRUE(run("kinesta devices --json | grep -q '\"name\": \"Virtual Touchpad\"'"));
    for (const bool isWayland : {false, true}) {
        EXPECT_TRUE(run("kinesta doctor > said"));
        EXPECT_TRUE(run("grep '✓ Touchpad: Virtual Touchpad at /dev/input/' said"));
        EXPECT_EQ(run("grep 'also reads it while this desktop has it switched off' said"), isWayland);
        setenv("WAYLAND_DISPLAY", "wayland-0", 1);
    }
    ChildProcess monitor("kinesta monitor");
    ASSERT_TRUE(monitor.says("Virtual Touchpad"));
    pad.tapWithThree();
    EXPECT_TRUE(monitor.says("3-finger single tap  →  would run: Middle click"));
    EXPECT_EQ(monitor.end(SIGTERM), 0);
}

}  // namespace
}  // namespace kinesta::vm
