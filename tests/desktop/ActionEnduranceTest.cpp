#include <gtest/gtest.h>
#include <malloc.h>

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
    const auto waits = [this] { return waitForProcessor(getpid()) + waitForProcessor(desktop.server->pid()); };
    const auto timed = [&] {
        const double waitsBefore = waits();
        const auto began = Clock::now();
        actions.run(ActionKind::keyboardShortcut);
        std::string event;
        while ((event = window.next()) != "Control+KEY_LEFTCTRL up" && !event.empty()) {
        }
        EXPECT_FALSE(event.empty());
        const std::chrono::duration<double, std::milli> taken = Clock::now() - began;
        return taken.count() - (waits() - waitsBefore);
    };
    // More than one round, because the machine below a virtual one may be busy, too.
    bool isFast = kIsSanitized;
    for (int round = 0; round < 10 && !isFast; ++round) {
        std::vector<double> times;
        for (int i = 0; i < 1000; ++i)
            times.push_back(timed());
        std::ranges::sort(times);
        std::cout << "from the decision to the client: median " << times[500] << " ms, worst " << times.back()
                  << " ms of 1000\n";
        isFast = times[500] <= 1 && times.back() <= 5;
    }
    EXPECT_TRUE(isFast);
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
