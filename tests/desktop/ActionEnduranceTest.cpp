#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/socket.h>
#include <unistd.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>

#include "actions/ActionExecutor.h"
#include "desktop/harness/EventWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "feedback/NoActionCue.h"
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

constexpr std::uint8_t kC = 54;
constexpr std::uint8_t kD = 40;

/// All that lies between the decision for an action and the desktop.
struct ActionEndurance : ::testing::Test {
    ActionEndurance() { actions.prepareToPost(); }

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
    NoActionCue cue;
    ActionExecutor executor{actions.ports(defaults, cue)};
};

TEST_F(ActionEndurance, ReachesAClientWithinAMillisecond) {
    EventWindow window(desktop);
    const auto timed = [&](const std::function<void()>& send, std::uint8_t keycode) {
        const auto began = std::chrono::steady_clock::now();
        send();
        EXPECT_TRUE(window.waitForKey(keycode));
        const auto end = std::chrono::steady_clock::now();
        window.all();
        return std::chrono::duration<double, std::milli>(end - began).count();
    };
    const auto bareKey = [this] {
        for (const auto type : {std::uint8_t{XCB_KEY_PRESS}, std::uint8_t{XCB_KEY_RELEASE}})
            xcb_test_fake_input(desktop.connection(), type, kD, XCB_CURRENT_TIME, desktop.root(), 0, 0, 0);
        xcb_flush(desktop.connection());
    };
    // The machine has other things to do: a round in which even a bare key was late says nothing about us.
    bool isTold = false;
    bool wasQuiet = false;
    double bestMedian = 1e9;
    for (int round = 0; round < 10 && !isTold; ++round) {
        std::vector<double> times;
        double worstOfBareKeys = 0;
        for (int i = 0; i < 1000; ++i) {
            times.push_back(timed([this] { run(ActionKind::keyboardShortcut); }, kC));
            worstOfBareKeys = std::max(worstOfBareKeys, timed(bareKey, kD));
        }
        std::sort(times.begin(), times.end());
        std::cout << "from the decision to the client: median " << times[500] << " ms, worst " << times.back()
                  << " ms of 1000; a bare key: worst " << worstOfBareKeys << " ms\n";
        isTold = times[500] <= 1 && times.back() <= 5;
        wasQuiet |= worstOfBareKeys <= 1;
        bestMedian = std::min(bestMedian, times[500]);
    }
    EXPECT_TRUE(kIsInstrumented || bestMedian <= 1) << bestMedian << ", however busy the machine is";
    EXPECT_TRUE(kIsInstrumented || isTold || !wasQuiet);
}

TEST_F(ActionEndurance, IsNotHeldUpByAServerThatHangs) {
    EventWindow window(desktop);
    const auto clicks = [&] {
        run(ActionKind::middleClick);
        EXPECT_EQ(window.next(), "press Button2");
        EXPECT_EQ(window.next(), "release Button2");
    };
    clicks();
    ucred server{};
    socklen_t size = sizeof server;
    ASSERT_EQ(getsockopt(xcb_get_file_descriptor(desktop.connection()), SOL_SOCKET, SO_PEERCRED, &server, &size), 0);
    ASSERT_EQ(kill(server.pid, SIGSTOP), 0);
    const auto began = std::chrono::steady_clock::now();
    for (const ActionKind kind : {ActionKind::middleClick, ActionKind::keyboardShortcut, ActionKind::closeWindow})
        run(kind);
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(3));
    ASSERT_EQ(kill(server.pid, SIGCONT), 0);
    clicks();  // and not those that could not be done in time
    run(ActionKind::keyboardShortcut);
    EXPECT_EQ(window.next(), "press Control_L");
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
    perform(500);
    const std::size_t heapBefore = mallinfo2().uordblks;
    const std::size_t residentBefore = residentPages();
    perform(2000);  // 11,250 in all
    if (!kIsInstrumented) {
        // On a busy machine the last programs are still being launched.
        EXPECT_TRUE(eventually([&] { return mallinfo2().uordblks <= heapBefore + 65536; }))
            << mallinfo2().uordblks - heapBefore << " bytes more, beyond six an action";
        EXPECT_LE(residentPages(), residentBefore + 128);
    }
}

}  // namespace
}  // namespace kinesta::testing
