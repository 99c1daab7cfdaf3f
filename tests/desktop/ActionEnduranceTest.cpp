#include <gtest/gtest.h>
#include <malloc.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>

#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/TestWindow.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsInstrumented = true;  // the sanitizer is slow and holds on to freed memory
#else
constexpr bool kIsInstrumented = false;
#endif

struct ActionEndurance : ::testing::Test {
    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    DesktopActions actions;
};

TEST_F(ActionEndurance, ReachesAClientWithinAMillisecond) {
    TestWindow window(desktop, TestWindow::kWholeScreen);
    window.show();
    constexpr std::uint8_t kC = 54, kD = 40;
    const auto timed = [&](const std::function<void()>& send, std::uint8_t keycode) {
        const auto began = std::chrono::steady_clock::now();
        send();
        EXPECT_TRUE(window.waitForKey(keycode));
        const auto end = std::chrono::steady_clock::now();
        window.events();
        return std::chrono::duration<double, std::milli>(end - began).count();
    };
    const auto bareKey = [this] {
        for (const auto type : {std::uint8_t{XCB_KEY_PRESS}, std::uint8_t{XCB_KEY_RELEASE}})
            xcb_test_fake_input(desktop.connection(), type, kD, XCB_CURRENT_TIME, desktop.root(), 0, 0, 0);
        xcb_flush(desktop.connection());
    };
    // A round in which even a bare key was late says nothing about the worst case: the machine was busy.
    bool isFast = false;
    bool wasQuiet = false;
    double bestMedian = 1e9;
    for (int round = 0; round < 10 && !isFast; ++round) {
        std::vector<double> times;
        double worstOfBareKeys = 0;
        for (int i = 0; i < 1000; ++i) {
            times.push_back(timed([this] { actions.run(ActionKind::keyboardShortcut); }, kC));
            worstOfBareKeys = std::max(worstOfBareKeys, timed(bareKey, kD));
        }
        std::ranges::sort(times);
        std::cout << "from the decision to the client: median " << times[500] << " ms, worst " << times.back()
                  << " ms of 1000; a bare key: worst " << worstOfBareKeys << " ms\n";
        isFast = times[500] <= 1 && times.back() <= 5;
        wasQuiet |= worstOfBareKeys <= 1;
        bestMedian = std::min(bestMedian, times[500]);
    }
    EXPECT_TRUE(kIsInstrumented || bestMedian <= 1) << bestMedian;
    EXPECT_TRUE(kIsInstrumented || isFast || !wasQuiet);
}

TEST_F(ActionEndurance, DoesNotWaitForAServerThatHangs) {
    TestWindow window(desktop, TestWindow::kWholeScreen);
    window.show();
    const Events click{"press Button2", "release Button2"};
    actions.run(ActionKind::middleClick);
    EXPECT_EQ((Events{window.next(), window.next()}), click);
    desktop.server().signal(SIGSTOP);
    const auto began = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        for (const ActionKind kind : {ActionKind::middleClick, ActionKind::keyboardShortcut, ActionKind::closeWindow})
            actions.run(kind);
        EXPECT_FALSE(actions.closes());
        EXPECT_FALSE(actions.tiles(WindowTilingMenuCommand::fill));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(1)) << "a hundred actions";
    desktop.server().signal(SIGCONT);
    desktop.active();  // has an answer, so the server runs again
    actions.run(ActionKind::middleClick);
    EXPECT_EQ((Events{window.next(), window.next()}), click) << "and not those that could not be done in time";
    actions.run(ActionKind::keyboardShortcut);
    EXPECT_EQ(window.next(), "press Control_L");
    EXPECT_TRUE(eventually([&] { return actions.closes(); }));
}

TEST_F(ActionEndurance, KeepsNothingOverTenThousandActions) {
    constexpr std::ptrdiff_t kOfOurOwn = 2;  // opened at the first launch
    const auto descriptors = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto residentPages = [] {
        std::size_t size = 0;
        std::size_t resident = 0;
        std::ifstream("/proc/self/statm") >> size >> resident;
        return resident;
    };
    const auto base = descriptors();
    const auto perform = [&](int count) {
        for (int i = 0; i < count; ++i) {
            actions.run(ActionKind::keyboardShortcut);
            actions.run(ActionKind::middleClick);
            actions.run(ActionKind::adjustVolume, 1);
            actions.run(ActionKind::closeWindow);
            if (i % 2 == 0)
                actions.run(ActionKind::launchApplication);
            // Our lists do not shrink below the most children that ran at once, so let these end.
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
