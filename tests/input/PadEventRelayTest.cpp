#include "input/PadEventRelay.h"

#include <gtest/gtest.h>

#include <thread>

#include "support/VirtualClock.h"

namespace kinesta::testing {
namespace {

struct PadEventRelaying : ::testing::Test {
    static PadEvent frame(Seconds time) { return {time, PadFrame{}}; }
    PadEventRelay::Watcher noting() {
        return [this](const PadEvent& event) { seen.push_back(event.time); };
    }

    VirtualMainThread mainThread{std::chrono::seconds(3)};
    VirtualClock clock{mainThread};
    PadEventRelay relay{mainThread, clock};
    std::vector<Seconds> seen;
};

TEST_F(PadEventRelaying, HandsOverWhatGatheredToTheWatcherOfThatMoment) {
    relay.offer(frame(1));
    int calls = 0;
    relay.setWatcher([&](const PadEvent& event) {
        if (const auto* content = std::get_if<PadFrame>(&event.content)) {
            EXPECT_EQ(content->received, clock.uptime());
        }
        seen.push_back(event.time);
        if (++calls == 3)
            relay.setWatcher({});
    });
    for (const Seconds time : {2, 3, 4})
        relay.offer(frame(time));
    relay.offer({3.5, PadButton::down});
    EXPECT_TRUE(seen.empty()) << "nothing on the driver's thread";
    mainThread.runPosted();
    EXPECT_EQ(seen, (std::vector<Seconds>{2, 3, 4})) << "the watcher ended itself";
    relay.setWatcher(noting());
    relay.offer(frame(5));
    relay.setWatcher({});
    relay.setWatcher(noting());
    relay.offer(frame(6));
    mainThread.runPosted();
    EXPECT_EQ(seen.back(), 6);
    EXPECT_EQ(seen.size(), 4U);
}

TEST_F(PadEventRelaying, LosesNothingWhileItIsWatchedAndMayGoBeforeItsTask) {
    auto own = std::make_unique<PadEventRelay>(mainThread, clock);
    std::atomic<int> offered = 0;
    std::atomic<bool> isEnding = false;
    std::thread driver([&] {
        while (!isEnding)
            own->offer(frame(offered++));
    });
    for (int round = 0; round < 20; ++round) {
        seen.clear();
        own->setWatcher(noting());
        for (const int goal = offered + 10; offered < goal;)
            mainThread.runPosted();
        own->setWatcher({});
        mainThread.runPosted();
        for (std::size_t i = 1; i < seen.size(); ++i)
            ASSERT_EQ(seen[i], seen[i - 1] + 1);
    }
    seen.clear();
    own->setWatcher(noting());
    for (const int goal = offered + 5; offered < goal;)
        std::this_thread::yield();
    isEnding = true;
    driver.join();
    own.reset();
    mainThread.runPosted();
    EXPECT_TRUE(seen.empty());
}

}  // namespace
}  // namespace kinesta::testing
