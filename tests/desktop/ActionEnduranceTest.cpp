#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "actions/ActionExecutor.h"
#include "desktop/EventWindow.h"
#include "desktop/TestDesktop.h"
#include "platform/linux/LinuxActions.h"
#include "support/InMemoryUserDefaults.h"
#include "support/SteadyClock.h"

namespace kinesta::testing {
namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsInstrumented = true;  // which slows everything down and keeps freed memory
#else
constexpr bool kIsInstrumented = false;
#endif

/// All that lies between the decision for an action and the desktop.
struct ActionEndurance : ::testing::Test {
    void run(ActionKind kind, std::int64_t steps = 0) {
        GestureAction action;
        action.kind = kind;
        action.keyCode = 8;  // with ⌘: Copy
        action.modifiers = ShortcutModifiers::command;
        action.value = "/bin/true";
        executor.execute(action, steps, false, std::nullopt);
    }

    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    SteadyClock clock;
    InMemoryUserDefaults defaults;
    LinuxActions actions{clock, defaults, [](const std::string&) {}};
    ActionExecutor executor{actions.ports()};
};

TEST_F(ActionEndurance, ReachesAClientWithinAMillisecond) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    EventWindow window(desktop);
    double median = 0;
    double worst = 0;
    // The machine has other things to do: a round in which it did them says nothing about us.
    for (int round = 0; round < 10; ++round) {
        std::vector<double> times;
        for (int i = 0; i < 1000; ++i) {
            const auto decision = std::chrono::steady_clock::now();
            run(ActionKind::keyboardShortcut);
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
    EXPECT_TRUE(kIsInstrumented || (median <= 1 && worst <= 5));
}

constexpr std::ptrdiff_t kOfOurOwn = 2;  // made at the first launch

TEST_F(ActionEndurance, HoldsOnToNothingOverTenThousandActions) {
    const auto descriptors = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto residentPages = [] {
        std::size_t ignored = 0;
        std::size_t resident = 0;
        std::ifstream("/proc/self/statm") >> ignored >> resident;
        return resident;
    };
    const auto base = descriptors();
    const auto perform = [&](int count) {
        for (int i = 0; i < count; ++i) {
            run(ActionKind::keyboardShortcut);
            run(ActionKind::middleClick);
            run(ActionKind::adjustVolume, 1);
            run(ActionKind::closeWindow);
            if (i % 2 == 0)
                run(ActionKind::launchApplication);
            // Children that live at the same time have a place each in our lists, which stays.
            if (i % 50 == 0) {
                ASSERT_TRUE(eventually([&] { return descriptors() <= base + kOfOurOwn; })) << "a child's is left";
            }
        }
    };
    perform(200);
    const std::size_t heapBefore = mallinfo2().uordblks;
    const std::size_t residentBefore = residentPages();
    perform(2200);  // 9,900 in all
    if (!kIsInstrumented) {
        EXPECT_LE(mallinfo2().uordblks, heapBefore + 16384) << "a byte and a half an action";
        EXPECT_LE(residentPages(), residentBefore + 128);
    }
}

}  // namespace
}  // namespace kinesta::testing
