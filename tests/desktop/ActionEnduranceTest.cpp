#include <gtest/gtest.h>
#include <malloc.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <functional>
#include <iostream>

#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/ProcessFigures.h"
#include "support/Sanitized.h"

namespace kinesta::testing {
namespace {

using Clock = std::chrono::steady_clock;

struct ActionEndurance : DesktopActionsTest {};

TEST_F(ActionEndurance, ReachesAClientWithinAMillisecond) {
    TestWindow window(desktop, kWholeScreen);
    window.show();
    const auto timed = [&](const std::string& last, const std::function<void()>& send) {
        const auto began = Clock::now();
        send();
        std::string event;
        while ((event = window.next()) != last && !event.empty()) {
        }
        EXPECT_EQ(event, last);
        return std::chrono::duration<double, std::milli>(Clock::now() - began).count();
    };
    const auto bareKey = [this] {
        constexpr std::uint8_t kD = 40;
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
            times.push_back(timed("Control+KEY_LEFTCTRL up", [this] { actions.run(ActionKind::keyboardShortcut); }));
            worstOfBareKeys = std::max(worstOfBareKeys, timed("KEY_D up", bareKey));
        }
        std::ranges::sort(times);
        std::cout << "from the decision to the client: median " << times[500] << " ms, worst " << times.back()
                  << " ms of 1000; a bare key: worst " << worstOfBareKeys << " ms\n";
        isFast = times[500] <= 1 && times.back() <= 5;
        wasQuiet |= worstOfBareKeys <= 1;
        bestMedian = std::min(bestMedian, times[500]);
    }
    EXPECT_TRUE(kIsSanitized || bestMedian <= 1) << bestMedian;
    EXPECT_TRUE(kIsSanitized || isFast || !wasQuiet);
}

TEST_F(ActionEndurance, DoesNotWaitForAServerThatHangs) {
    TestWindow window(desktop, kWholeScreen);
    window.show();
    const auto clicks = [&] {
        actions.run(ActionKind::middleClick);
        return window.next() == "BTN2 down" && window.next() == "BTN2 up";
    };
    EXPECT_TRUE(clicks());
    desktop.server->signal(SIGSTOP);
    const auto began = Clock::now();
    for (int i = 0; i < 20; ++i) {
        for (const ActionKind kind : {ActionKind::middleClick, ActionKind::keyboardShortcut, ActionKind::closeWindow})
            actions.run(kind);
        EXPECT_FALSE(actions.closes());
        EXPECT_FALSE(actions.tiles(WindowTilingMenuCommand::fill));
    }
    EXPECT_LT(Clock::now() - began, std::chrono::seconds(1)) << "a hundred actions";
    desktop.server->signal(SIGCONT);
    desktop.active();  // has an answer, so the server runs again
    EXPECT_TRUE(clicks()) << "and not those that could not be done in time";
    actions.run(ActionKind::keyboardShortcut);
    EXPECT_EQ(window.next(), "KEY_LEFTCTRL down");
    EXPECT_TRUE(eventually([&] { return actions.closes(); }));
}

TEST_F(ActionEndurance, AsksTheServerRarely) {
    TestWindow window(desktop, {100, 100, 200, 100});
    window.show();
    const auto trips = [&](const std::function<void()>& work) {
        work();  // the first call also reads the keymap
        const unsigned before = actions.roundTrips();
        work();
        return actions.roundTrips() - before;
    };
    EXPECT_LE(trips([&] { EXPECT_TRUE(actions.tiles(WindowTilingMenuCommand::left)); }), 6U);
    EXPECT_LE(trips([&] { EXPECT_TRUE(actions.closes()); }), 11U);
    for (const ActionKind kind : {ActionKind::keyboardShortcut, ActionKind::middleClick}) {
        const unsigned count = trips([&] { actions.run(kind); });
        EXPECT_TRUE(count == 1 || count == 2) << count;
    }
}

TEST_F(ActionEndurance, KeepsNothingOverTenThousandActions) {
    constexpr long kOfOurOwn = 2;  // opened at the first launch
    const auto figures = [] { return ProcessFigures(getpid()); };
    const long base = figures().descriptors;
    const auto perform = [&](int count) {
        for (int i = 0; i < count; ++i) {
            for (const ActionKind kind : {ActionKind::keyboardShortcut, ActionKind::middleClick,
                                          ActionKind::adjustVolume, ActionKind::closeWindow})
                actions.run(kind, 1);
            if (i % 2 == 0)
                actions.run(ActionKind::launchApplication);
            // Our lists do not shrink below the most children that ran at once, so let these end.
            if (i % 50 == 0) {
                ASSERT_TRUE(eventually([&] { return figures().descriptors <= base + kOfOurOwn; }))
                    << "a child's is left";
            }
        }
    };
    perform(500);
    const std::size_t heapBefore = mallinfo2().uordblks;
    const long residentBefore = figures().residentKilobytes;
    perform(2000);  // 11,250 in all
    if (!kIsSanitized) {
        // On a busy machine the last programs are still being launched.
        EXPECT_TRUE(eventually([&] { return mallinfo2().uordblks <= heapBefore + 65536; }))
            << mallinfo2().uordblks - heapBefore << " bytes more, beyond six an action";
        EXPECT_LE(figures().residentKilobytes, residentBefore + 512);
    }
}

}  // namespace
}  // namespace kinesta::testing
