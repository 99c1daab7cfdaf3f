#include <gtest/gtest.h>
#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "platform/linux/touchpad/DeviceAccess.h"
#include "platform/linux/touchpad/TouchpadListing.h"
#include "support/DconfSample.h"
#include "support/TemporaryFolder.h"
#include "vm/AsNobody.h"
#include "vm/PadReading.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

constexpr const char* kNone = "No built-in trackpad was found.";

/// How often each thread of this process has gone to sleep by itself.
std::map<std::string, std::string> sleepsOfThreads() {
    std::map<std::string, std::string> sleeps;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream status(task.path() / "status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with("voluntary_ctxt_switches"))
                sleeps[task.path().filename()] = line;
    }
    sleeps.erase(std::to_string(getpid()));
    return sleeps;
}

std::size_t openDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

void tap(VirtualTouchpad& pad, int trackingId) {
    pad.down(0, trackingId, 500, 250).report();
    pad.up(0).report();
}

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
        tap(*pad, trackingId);
        EXPECT_EQ(reading.take(2), (Lines{"t " + std::to_string(trackingId) + "@0.50,0.50", "t"}));
        pad.reset();
        EXPECT_EQ(reading.take(1), (Lines{kNone}));
    }
}

TEST(TouchpadComingAndGoing, PrefersTheBuiltInPadAndReadsOnlyOne) {
    VirtualTouchpad external({.name = "External Touchpad", .bus = BUS_USB});
    PadReading reading;
    EXPECT_EQ(reading.status(), "listening");
    tap(external, 1);
    EXPECT_EQ(reading.take(2).size(), 2U);
    external.down(0, 2, 500, 250).report();
    EXPECT_EQ(reading.take(1).size(), 1U);

    auto builtIn = std::make_unique<VirtualTouchpad>();
    EXPECT_EQ(reading.take(2), (Lines{"t", "listening"}));  // the finger on the other pad counts no more
    EXPECT_EQ(reading.provider().state().path, builtIn->path());
    tap(external, 3);
    tap(*builtIn, 4);
    EXPECT_EQ(reading.take(2), (Lines{"t 4@0.50,0.50", "t"}));

    PadReading byName({.device = "External Touchpad", .pressure = {}});
    PadReading byPath({.device = external.path(), .pressure = {}});
    tap(external, 5);
    for (PadReading* named : {&byName, &byPath})
        EXPECT_EQ(named->take(2), (Lines{"t 5@0.50,0.50", "t"}));
    builtIn.reset();
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(reading.provider().state().path, external.path());

    PadReading wrong({.device = "No Such Pad", .pressure = {}});
    EXPECT_EQ(wrong.status(), "No trackpad named \"No Such Pad\" was found.");
}

TEST(TouchpadComingAndGoing, LeavesThePadOfTheSettingsWithNoFingerOnIt) {
    VirtualTouchpad first({.name = "First Touchpad"});
    VirtualTouchpad second({.name = "Second Touchpad"});
    PadReading reading({.device = "First Touchpad", .pressure = {}});
    first.down(0, 1, 500, 250).report();
    EXPECT_EQ(reading.take(1), (Lines{"t 1@0.50,0.50"}));
    const double landed = reading.times()[0];
    reading.provider().setDevice("Second Touchpad");
    EXPECT_EQ(reading.take(2), (Lines{"t", "listening"}));
    EXPECT_GT(reading.times()[0], landed);
    first.up(0).report();
    tap(second, 2);
    EXPECT_EQ(reading.take(2), (Lines{"t 2@0.50,0.50", "t"}));
    reading.provider().setDevice("First Touchpad");
    EXPECT_EQ(reading.take(1), (Lines{"listening"})) << "no frame where there was no finger";
}

TEST(TouchpadComingAndGoing, FollowsThePermission) {
    VirtualTouchpad pad({.name = "Secret Touchpad"});
    ASSERT_EQ(chmod(pad.path().c_str(), 0600), 0);
    std::unique_ptr<PadReading> reading;
    std::vector<ListedTouchpad> listed;
    {
        const AsNobody nobody;
        reading = std::make_unique<PadReading>();
        listed = listTouchpads();
    }
    const std::string refusal = "The trackpad \"Secret Touchpad\" (" + pad.path() +
                                ") may not be read; to allow it, run: " + touchpadAccessCommand();
    EXPECT_EQ(reading->status(), refusal);
    ASSERT_EQ(listed.size(), 1U);
    EXPECT_EQ(listed[0].problem, refusal);
    EXPECT_TRUE(listed[0].isChosen);

    ASSERT_EQ(chmod(pad.path().c_str(), 0644), 0);
    EXPECT_EQ(reading->take(1), (Lines{"listening"}));
    tap(pad, 1);
    EXPECT_EQ(reading->take(2), (Lines{"t 1@0.50,0.50", "t"}));

    // Another person's session has come to the front.
    ASSERT_EQ(chmod(pad.path().c_str(), 0600), 0);
    EXPECT_EQ(reading->take(1), (Lines{refusal}));
    tap(pad, 2);
    ASSERT_EQ(chmod(pad.path().c_str(), 0644), 0);
    EXPECT_EQ(reading->take(1), (Lines{"listening"}));
}

/// A mouse with a USB plug, connected from now until it is reset.
std::shared_ptr<libevdev_uinput> connectMouse() {
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> device(libevdev_new(), libevdev_free);
    libevdev_set_name(device.get(), "Mouse");
    libevdev_set_id_bustype(device.get(), BUS_USB);
    for (const unsigned axis : {0U + REL_X, 0U + REL_Y})
        libevdev_enable_event_code(device.get(), EV_REL, axis, nullptr);
    libevdev_enable_event_code(device.get(), EV_KEY, BTN_LEFT, nullptr);
    libevdev_uinput* made = nullptr;
    EXPECT_EQ(libevdev_uinput_create_from_device(device.get(), LIBEVDEV_UINPUT_OPEN_MANAGED, &made), 0);
    return {made, libevdev_uinput_destroy};
}

TEST(TouchpadComingAndGoing, IsLeftAloneWhileTheDesktopHasItSwitchedOff) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "dconf");
    setenv("XDG_CURRENT_DESKTOP", "GNOME", 1);
    setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
    VirtualTouchpad pad;
    PadReading reading;
    pad.down(0, 1, 500, 250).report();
    EXPECT_EQ(reading.take(1), (Lines{"t 1@0.50,0.50"}));
    folder.write("dconf/user", dconfSample());
    EXPECT_EQ(reading.take(2), (Lines{"t", "The trackpad is switched off in the desktop's settings."}));
    pad.up(0).report();
    tap(pad, 2);
    std::filesystem::rename(folder.path() / "dconf" / "user", folder.path() / "dconf" / "old");
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    tap(pad, 3);
    EXPECT_EQ(reading.take(2), (Lines{"t 3@0.50,0.50", "t"}));

    // Off with a mouse only: the list says what the reader does.
    folder.write("dconf/user", dconfSample("disabled-on-external-mouse"));
    EXPECT_EQ(listTouchpads().front().problem, "");
    auto mouse = connectMouse();
    const Lines told = reading.take(1);
    EXPECT_EQ(told, (Lines{"The trackpad is switched off in the desktop's settings while an external mouse is "
                           "connected."}));
    EXPECT_EQ(Lines{listTouchpads().front().problem}, told);
    mouse.reset();
    EXPECT_EQ(reading.take(1), (Lines{"listening"}));
    EXPECT_EQ(listTouchpads().front().problem, "");
    unsetenv("XDG_CURRENT_DESKTOP");
    unsetenv("XDG_CONFIG_HOME");
}

TEST(TouchpadComingAndGoing, StartsAndStopsAtOnceAndLeavesNothing) {
    VirtualTouchpad pad;
    const std::size_t descriptors = openDescriptors();
    std::vector<double> delays;
    {
        PadReading reading;
        for (int i = 1; i <= 20; ++i) {
            reading.provider().start();
            tap(pad, i);
            EXPECT_EQ(reading.take(2).size(), 2U) << i;
            pad.key(BTN_LEFT, true).report();
            pad.key(BTN_LEFT, false).report();
            const double before = now();
            reading.provider().stop();
            delays.push_back(now() - before);
            EXPECT_EQ(reading.status(), "stopped");
            reading.provider().stop();
            reading.provider().start();
        }
        tap(pad, 99);
        EXPECT_EQ(reading.take(3, kMoment), (Lines{"t 99@0.50,0.50", "t"}));  // and no click of a run that is over
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    std::sort(delays.begin(), delays.end());
    std::printf("LATENCY stop(): median %.1f ms, worst %.1f ms\n", delays[delays.size() / 2] * 1e3,
                delays.back() * 1e3);
    EXPECT_LT(delays[delays.size() / 2], 0.01);
}

TEST(TouchpadComingAndGoing, SleepsWhileNothingHappens) {
    VirtualTouchpad pad;
    PadReading reading;
    tap(pad, 1);
    reading.take(2);
    EXPECT_EQ(reading.take(1, kMoment).size(), 0U);  // the watch settles
    const auto before = sleepsOfThreads();
    ASSERT_EQ(before.size(), 1U);
    EXPECT_EQ(reading.take(1, std::chrono::seconds(2)).size(), 0U);
    EXPECT_EQ(sleepsOfThreads(), before);
}

TEST(TouchpadComingAndGoing, ListsWhatThereIs) {
    const VirtualTouchpad builtIn({.name = "Built-in", .pressureResolution = 10, .maximumPressure = 255});
    const VirtualTouchpad external({.name = "External", .bus = BUS_BLUETOOTH, .slots = 2, .maximumX = 300});
    std::set<std::string> found;
    for (const ListedTouchpad& listed : listTouchpads("External")) {
        ASSERT_TRUE(listed.touchpad);
        found.insert(listed.candidate.path + ' ' + listed.candidate.name +
                     (listed.candidate.isBuiltIn ? " inside" : "") + (listed.isChosen ? " chosen" : "") +
                     (listed.canTellPressure ? " force " : " ") + std::to_string(listed.touchpad->slotCount) + '/' +
                     std::to_string(listed.touchpad->x.maximum) + listed.problem);
    }
    EXPECT_EQ(found, (std::set<std::string>{builtIn.path() + " Built-in inside force 5/1000",
                                            external.path() + " External chosen 2/300"}));
}

}  // namespace
}  // namespace kinesta::vm
