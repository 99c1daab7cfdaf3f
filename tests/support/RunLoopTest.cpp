#include "support/RunLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "support/SteadyClock.h"

using namespace kinesta;
using namespace std::chrono_literals;

namespace {

using Log = std::vector<std::string>;

struct RunLoopTest : testing::Test {
    MainThread::Task note(std::string name) {
        return [this, name] { log.push_back(name); };
    }

    Log log;
    RunLoop loop;
    MainThread& port = loop;
};

}  // namespace

TEST_F(RunLoopTest, aQuitEndsOneRunAndKeepsTheRest) {
    loop.quit();
    port.post(note("a"));
    loop.run();
    EXPECT_EQ(log, Log());
    port.post([&] { loop.quit(); });
    port.post(note("b"));
    loop.run();
    EXPECT_EQ(log, (Log{"a"}));
    port.post([&] { loop.quit(); });
    loop.run();
    EXPECT_EQ(log, (Log{"a", "b"}));
}

TEST_F(RunLoopTest, runsDelayedWorkInOrderNotBeforeItIsDueAndNotOnceCancelled) {
    const SteadyClock clock;
    const Uptime start = clock.uptime();
    Uptime end = 0;
    const DelayedTask last = port.after(20ms, [&] {
        end = clock.uptime();
        loop.quit();
    });
    DelayedTask victim = port.after(5ms, note("victim"));
    const DelayedTask early = port.after(1ms, note("1ms"));
    const DelayedTask killer = port.after(2ms, [&] { victim.cancel(); });
    const DelayedTask never = port.after(std::chrono::nanoseconds::max(), note("never"));
    const DelayedTask tie1 = port.after(0ns, note("0ms"));
    loop.run();
    EXPECT_EQ(log, (Log{"0ms", "1ms"}));
    EXPECT_GE(end - start, 0.020);
}

TEST_F(RunLoopTest, neitherPostedNorDelayedWorkStarvesTheOther) {
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
        log.push_back("delayed");
        isPosting = false;
        port.post([&] {
            log.push_back("posted");
            loop.quit();
        });
    });
    loop.run();
    EXPECT_EQ(log, (Log{"delayed", "posted"}));
}

TEST_F(RunLoopTest, takesWorkOfManyThreadsInEachOnesOrder) {
    constexpr int kEach = 2000;
    std::vector<int> counts(4, 0);
    int left = kEach * 4;
    bool isInOrder = true;
    std::vector<std::thread> posters;
    for (std::size_t poster = 0; poster < counts.size(); ++poster)
        posters.emplace_back([&, poster] {
            for (int i = 0; i < kEach; ++i)
                port.post([&, poster, i] {
                    isInOrder = counts[poster]++ == i && isInOrder;
                    if (--left == 0)
                        loop.quit();
                });
        });
    loop.run();
    for (auto& poster : posters)
        poster.join();
    EXPECT_TRUE(isInOrder);
    EXPECT_EQ(counts, std::vector<int>(4, kEach));
}

TEST(RunLoop, mayGoAsSoonAsRunReturnedAfterAQuitFromAnotherThread) {
    for (int round = 0; round < 200; ++round) {
        auto loop = std::make_unique<RunLoop>();
        std::thread other([&target = *loop] { target.quit(); });
        loop->run();
        loop.reset();
        other.join();
    }
}

TEST(RunLoop, holdsNoLockWhileATaskIsRunOrDestroyed) {
    RunLoop loop;
    // A lock held by mistake shows as a hang, which the test's time limit ends.
    auto inner = std::make_shared<DelayedTask>(loop.after(1h, [] {}));
    auto outer = loop.after(1h, [owned = std::move(inner)] {});
    loop.post([&, late = std::make_shared<DelayedTask>(loop.after(1h, [] {}))] {
        outer.cancel();  // destroys a task that cancels another
        std::thread([&] { loop.post([&] { loop.quit(); }); }).join();
    });
    auto abandoned = std::make_shared<DelayedTask>(loop.after(1h, [] {}));
    auto left = std::make_shared<DelayedTask>();
    *left = loop.after(1h, [owned = std::move(abandoned)] {});
    loop.post([left] {});
    loop.run();
}
