#include "support/RunLoop.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

#include "support/SteadyClock.h"

using namespace kinesta;
using namespace std::chrono_literals;

namespace {

struct RunLoopTest : testing::Test {
    MainThread::Task note(std::string name) {
        return [this, name] { log += name + " "; };
    }

    std::string log;
    RunLoop loop;
    MainThread& port = loop;
};

}  // namespace

TEST_F(RunLoopTest, EndsOneRunPerQuitAndKeepsTheRest) {
    loop.quit();
    port.post(note("a"));
    loop.run();
    EXPECT_EQ(log, "");
    port.post([&] { loop.quit(); });
    port.post(note("b"));
    loop.run();
    EXPECT_EQ(log, "a ");
    port.post([&] { loop.quit(); });
    loop.run();
    EXPECT_EQ(log, "a b ");
}

TEST_F(RunLoopTest, RunsDelayedWorkInOrderWhenItIsDue) {
    const SteadyClock clock;
    const Uptime start = clock.uptime();
    Uptime end = 0;
    const DelayedTask last = port.after(20ms, [&] {
        end = clock.uptime();
        loop.quit();
    });
    DelayedTask cancelled = port.after(5ms, note("cancelled"));
    const DelayedTask early = port.after(1ms, note("1ms"));
    const DelayedTask canceller = port.after(2ms, [&] { cancelled.cancel(); });
    const DelayedTask never = port.after(std::chrono::nanoseconds::max(), note("never"));
    const DelayedTask first = port.after(0ns, note("0ms"));
    loop.run();
    EXPECT_EQ(log, "0ms 1ms ");
    EXPECT_GE(end - start, 0.020);
}

TEST_F(RunLoopTest, StarvesNeitherPostedNorDelayedWork) {
    MainThread::Task again;
    DelayedTask repeated;
    bool isPosting = true;
    again = [&] {
        if (isPosting)
            port.post(again);
        else
            repeated = port.after(0ns, again);
    };
    port.post(again);
    const DelayedTask delayed = port.after(1ms, [&] {
        isPosting = false;
        port.post([&] {
            note("posted")();
            loop.quit();
        });
        note("delayed")();
    });
    loop.run();
    EXPECT_EQ(log, "delayed posted ");
}

TEST_F(RunLoopTest, KeepsTheOrderOfEachPostingThread) {
    constexpr int kEach = 2000;
    std::vector<int> counts(4, 0);
    int left = kEach * 4;
    bool isInOrder = true;
    std::vector<std::thread> posters;
    for (int& count : counts)
        posters.emplace_back([&] {
            for (int i = 0; i < kEach; ++i)
                port.post([&, i] {
                    isInOrder = count++ == i && isInOrder;
                    if (--left == 0)
                        loop.quit();
                });
        });
    loop.run();
    for (auto& poster : posters)
        poster.join();
    EXPECT_TRUE(isInOrder);
}

TEST(RunLoop, MayBeDestroyedAsSoonAsRunReturns) {
    for (int round = 0; round < 200; ++round) {
        auto loop = std::make_unique<RunLoop>();
        std::thread other([&target = *loop] { target.quit(); });
        loop->run();
        loop.reset();
        other.join();
    }
}

// A lock held by mistake shows as a hang until the test's time limit.
TEST(RunLoop, HoldsNoLockWhileATaskRunsOrIsDestroyed) {
    RunLoop loop;
    auto inner = std::make_shared<DelayedTask>(loop.after(1h, [] {}));
    auto outer = loop.after(1h, [owned = std::move(inner)] {});
    loop.post([&] {
        outer.cancel();  // destroys a task that cancels another
        std::thread([&] { loop.post([&] { loop.quit(); }); }).join();
    });
    auto left = std::make_shared<DelayedTask>(loop.after(1h, [] {}));
    const auto holder = std::make_shared<DelayedTask>(loop.after(1h, [owned = std::move(left)] {}));
    loop.post([holder] {});
    loop.run();
}
