#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "desktop/harness/ProcessFigures.h"
#include "platform/linux/touchpad/DeviceAccess.h"
#include "platform/linux/touchpad/TouchpadListing.h"
#include "support/DconfSample.h"
#include "vm/DeviceListener.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

constexpr const char* kNone = "No built-in trackpad was found.";

/// The lines for one touch() of a pad.
Lines touchOf(int trackingId) { return {"t " + std::to_string(trackingId) + "@0.50,0.50", "t"}; }

TEST(TouchpadComingAndGoing, FollowsThePadThroughUnplugging) {
    PadReading reading;
    EXPECT_EQ(reading.status(), kNone);
    auto pad = std::make_unique<VirtualTouchpad>();
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    pad->down(0, 1, 500, 250).report();
    EXPECT_EQ(reading.take(1), (Lines{"t 1@0.50,0.50"}));
    pad.reset();  // with a finger on it
    EXPECT_EQ(reading.take(2), (Lines{"t", kNone}));
    for (int trackingId = 2; trackingId < 5; ++trackingId) {
        pad = std::make_unique<VirtualTouchpad>();
        EXPECT_EQ(reading.take(1), (Lines{"listening"}));
        pad->touch(trackingId);
        EXPECT_EQ(reading.take(2), touchOf(trackingId));
        pad.reset();
        EXPECT_EQ(reading.take(1), (Lines{kNone}));
    }
}

TEST(TouchpadComingAndGoing, PrefersTheBuiltInPadAndReadsOnlyOne) {
    VirtualTouchpad external({.name = "External Touchpad", .bus = BUS_USB});
    PadReading reading;
    external.down(0, 2, 500, 250).report();
    EXPECT_EQ(reading.take(1).size(), 1U);

    auto builtIn = std::make_unique<VirtualTouchpad>();
    EXPECT_EQ(reading.take(2), (Lines{"t", "listening"}));  // the finger on the other pad no longer counts
    EXPECT_EQ(reading.provider().state().path, builtIn->path());
    external.touch(3);
    builtIn->touch(4);
    EXPECT_EQ(reading.take(2), touchOf(4));

    PadReading byName("External Touchpad");
    PadReading byPath(external.path());
    external.touch(5);
    for (PadReading* named : {&byName, &byPath})
        EXPECT_EQ(named->take(2), touchOf(5));
    builtIn.reset();
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(reading.provider().state().path, external.path());
    EXPECT_EQ(PadReading("No Such Pad").status(), "No trackpad named \"No Such Pad\" was found.");
}

TEST(TouchpadComingAndGoing, LiftsTheFingersWhenAnotherPadIsChosen) {
    VirtualTouchpad first({.name = "First Touchpad"});
    VirtualTouchpad second({.name = "Second Touchpad"});
    PadReading reading("First Touchpad");
    first.down(0, 1, 500, 250).report();
    EXPECT_EQ(reading.take(1), (Lines{"t 1@0.50,0.50"}));
    const double landed = reading.times()[0];
    reading.provider().setDevice("Second Touchpad");
    EXPECT_EQ(reading.take(2), (Lines{"t", "listening"}));
    EXPECT_GT(reading.times()[0], landed);
    first.up(0).report();
    second.touch(2);
    EXPECT_EQ(reading.take(2), touchOf(2));
    reading.provider().setDevice("First Touchpad");
    EXPECT_EQ(reading.take(1), (Lines{"listening"})) << "no frame, because there was no finger";
}

TEST(TouchpadComingAndGoing, FollowsThePermission) {
    VirtualTouchpad pad({.name = "Secret Touchpad"});
    ASSERT_EQ(chmod(pad.path().c_str(), 0600), 0);
    std::unique_ptr<PadReading> reading;
    std::vector<ListedTouchpad> listed;
    asOrdinaryUser([&] {
        reading = std::make_unique<PadReading>();
        listed = listTouchpads();
    });
    const std::string problem = "The trackpad \"Secret Touchpad\" (" + pad.path() + ") may not be read";
    const std::string refusal = problem + "; to allow it, run: " + touchpadAccessCommand();
    EXPECT_EQ(reading->status(), refusal);
    ASSERT_EQ(listed.size(), 1U);
    EXPECT_EQ(listed[0].problem, problem + ".");
    EXPECT_EQ(listed[0].command, touchpadAccessCommand());
    EXPECT_TRUE(listed[0].isChosen);

    ASSERT_EQ(chmod(pad.path().c_str(), 0644), 0);
    EXPECT_EQ(reading->take(1), (Lines{"listening"}));
    pad.touch(1);
    EXPECT_EQ(reading->take(2), touchOf(1));

    // Another person's session has come to the front.
    ASSERT_EQ(chmod(pad.path().c_str(), 0600), 0);
    EXPECT_EQ(reading->take(1), (Lines{refusal}));
    pad.touch(2);
    ASSERT_EQ(chmod(pad.path().c_str(), 0644), 0);
    EXPECT_EQ(reading->take(1), (Lines{"listening"}));
}

TEST(TouchpadComingAndGoing, IsLeftAloneWhileTheDesktopHasItSwitchedOff) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "dconf");
    const auto keyboard = UinputDevice::create();  // ours: no external mouse
    setenv("XDG_CURRENT_DESKTOP", "GNOME", 1);
    setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
    VirtualTouchpad pad;
    PadReading reading;
    pad.down(0, 1, 500, 250).report();
    EXPECT_EQ(reading.take(1), (Lines{"t 1@0.50,0.50"}));
    folder.write("dconf/user", dconfSample());
    EXPECT_EQ(reading.take(2), (Lines{"t", "The trackpad is switched off in the desktop's settings."}));
    pad.up(0).report();
    pad.touch(2);
    std::filesystem::rename(folder / "dconf/user", folder / "dconf/old");
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    pad.touch(3);
    EXPECT_EQ(reading.take(2), touchOf(3));

    // Off only while a mouse is connected: the list agrees with the reader.
    folder.write("dconf/user", dconfSample("disabled-on-external-mouse"));
    EXPECT_EQ(listTouchpads().front().problem, "");
    auto mouse = connectMouse();
    const Lines off = reading.take(1);
    EXPECT_EQ(off, (Lines{"The trackpad is switched off in the desktop's settings while an external mouse is "
                          "connected."}));
    EXPECT_EQ(Lines{listTouchpads().front().problem}, off);
    mouse.reset();
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
}

TEST(TouchpadComingAndGoing, StartsAndStopsAtOnceAndLeavesNothing) {
    VirtualTouchpad pad;
    const long descriptors = testing::ProcessFigures(getpid()).descriptors;
    std::vector<double> delays;
    {
        PadReading reading;
        for (int i = 1; i <= 20; ++i) {
            pad.touch(i);
            EXPECT_EQ(reading.take(2).size(), 2U) << i;
            pad.key(BTN_LEFT, true).report();
            pad.key(BTN_LEFT, false).report();
            const double before = now();
            reading.provider().stop();
            delays.push_back(now() - before);
            EXPECT_EQ(reading.status(), "stopped");
            reading.provider().stop();
            reading.provider().start();
            reading.provider().start();
        }
        pad.touch(99);
        EXPECT_EQ(reading.take(3, kMoment), touchOf(99)) << "and no click of a run that is over";
    }
    EXPECT_EQ(testing::ProcessFigures(getpid()).descriptors, descriptors);
    std::sort(delays.begin(), delays.end());
    std::printf("LATENCY stop(): median %.1f ms, worst %.1f ms\n", delays[delays.size() / 2] * 1e3,
                delays.back() * 1e3);
    EXPECT_LT(delays[delays.size() / 2], 0.01);
}

TEST(TouchpadComingAndGoing, ListsWhatThereIs) {
    const VirtualTouchpad builtIn({.name = "Built-in", .maximumPressure = 255, .pressureResolution = 10});
    const VirtualTouchpad external({.name = "External", .bus = BUS_BLUETOOTH, .slots = 2});
    std::set<std::string> found;
    for (const ListedTouchpad& listed : listTouchpads("External")) {
        ASSERT_TRUE(listed.touchpad);
        found.insert(listed.candidate.path + ' ' + listed.candidate.name +
                     (listed.candidate.isBuiltIn ? " inside" : "") + (listed.isChosen ? " chosen" : "") +
                     (listed.canTellPressure ? " force " : " ") + std::to_string(listed.touchpad->slotCount) + '/' +
                     std::to_string(listed.touchpad->y.maximum) + listed.problem);
    }
    EXPECT_EQ(found, (std::set<std::string>{builtIn.path() + " Built-in inside force 5/500",
                                            external.path() + " External chosen 2/500"}));
}

}  // namespace
}  // namespace kinesta::vm
