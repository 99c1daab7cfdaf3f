#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "desktop/EventWindow.h"
#include "desktop/TestDesktop.h"
#include "platform/linux/PostingEventSynthesizer.h"
#include "platform/linux/X11InputPoster.h"
#include "platform/linux/XkbKeyboardLayout.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta::testing {
namespace {

/// All that lies between the decision for an action and the X server.
struct Endurance : ::testing::Test {
    void copy() {
        layout.charactersWithoutModifiers();
        const auto source = synthesizer.makeSource();
        const auto down = synthesizer.makeKeyEvent(source.get(), 8, KeyTransition::down);
        const auto up = synthesizer.makeKeyEvent(source.get(), 8, KeyTransition::up);
        for (const auto& event : {down.get(), up.get()}) {
            event->setFlags(0x100000);
            event->post();
        }
    }

    TestDesktop desktop;
    X11Connection connection;
    X11Keyboard keyboard{connection};
    X11InputPoster poster{connection, keyboard};
    InMemoryUserDefaults defaults;
    PostingEventSynthesizer synthesizer{poster, defaults, [](const std::string&) {}};
    XkbKeyboardLayout layout{keyboard};
};

TEST_F(Endurance, ReachesAClientWithinAMillisecond) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    EventWindow window(desktop);
    double median = 0;
    double worst = 0;
    // The machine has other things to do: a round in which it did them says nothing about us.
    for (int round = 0; round < 10; ++round) {
        std::vector<double> times;
        for (int i = 0; i < 1000; ++i) {
            const auto decision = std::chrono::steady_clock::now();
            copy();
            ASSERT_TRUE(window.waitForKey(54)) << "c";
            times.push_back(Milliseconds(std::chrono::steady_clock::now() - decision).count());
            window.all();
        }
        std::sort(times.begin(), times.end());
        median = times[times.size() / 2];
        worst = times.back();
        std::cout << "from the decision to the client: median " << median << " ms, worst " << worst << " ms of 1000\n";
        if (median <= 1 && worst <= 5)
            break;
    }
    EXPECT_LE(median, 1);  // the worst is told only: it is the machine's as much as ours
}

TEST_F(Endurance, HoldsOnToNothing) {
    struct Usage {
        std::ptrdiff_t descriptors;
        std::size_t heap, residentPages;
    };
    const auto usage = [] {
        const auto descriptors =
            std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
        std::size_t ignored = 0;
        std::size_t resident = 0;
        std::ifstream("/proc/self/statm") >> ignored >> resident;
        return Usage{descriptors, mallinfo2().uordblks, resident};
    };
    for (int i = 0; i < 500; ++i)
        copy();
    const Usage before = usage();
    for (int i = 0; i < 10000; ++i)
        copy();
    const Usage after = usage();
    EXPECT_EQ(after.descriptors, before.descriptors);
    EXPECT_LE(after.heap, before.heap + 4096) << "half a byte a stroke";
    EXPECT_LE(after.residentPages, before.residentPages + 64);
}

}  // namespace
}  // namespace kinesta::testing
