#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>

#include "support/RunLoop.h"
#include "support/SteadyClock.h"
#include "support/VirtualMainThread.h"

using namespace kinesta;
using namespace std::chrono_literals;

namespace {

/// A main thread and a log of the tasks that have run.
template <typename Thread>
struct LoggedThread : testing::Test {
    /// A task that logs its name, and the time if it is virtual, then runs `then`.
    MainThread::Task note(std::string name, MainThread::Task then = {}) {
        return [this, name, then] {
            log += name;
            if constexpr (requires { thread.now(); })
                log += "@" + std::to_string(thread.now().count());
            log += " ";
            if (then)
                then();
        };
    }
    void after(std::chrono::nanoseconds delay, std::string name, MainThread::Task then = {}) {
        handles.push_back(port.after(delay, note(std::move(name), std::move(then))));
    }

    std::string log;
    Thread thread;
    MainThread& port = thread;
    std::vector<DelayedTask> handles;
};

using RunLoopTest = LoggedThread<RunLoop>;
using VirtualMainThreadTest = LoggedThread<VirtualMainThread>;

}  // namespace

TEST_F(RunLoopTest, EndsOneRunPerQuitAndKeepsTheRest) {
    thread.quit();
    port.post(note("a", [&] { thread.quit(); }));
    port.post(note("b", [&] { thread.quit(); }));
    for (const char* const expected : {"", "a ", "a b "}) {
        thread.run();
        EXPECT_EQ(log, expected);
    }
}

TEST_F(RunLoopTest, RunsDelayedWorkInOrderWhenItIsDue) {
    const SteadyClock clock;
    const Uptime start = clock.uptime();
    after(5ms, "cancelled");
    after(20ms, "20ms", [&] { thread.quit(); });
    after(1ms, "1ms");
    after(2ms, "2ms", [&] { handles[0].cancel(); });
    after(std::chrono::nanoseconds::max(), "never");
    after(0ns, "0ms");
    thread.run();
    EXPECT_EQ(log, "0ms 1ms 2ms 20ms ");
    EXPECT_GE(clock.uptime() - start, 0.020);
}

TEST_F(RunLoopTest, StarvesNeitherPostedNorDelayedWork) {
    bool isPosting = true;
    const MainThread::Task again = [&] { isPosting ? port.post(again) : handles.push_back(port.after(0ns, again)); };
    port.post(again);
    after(1ms, "delayed", [&] {
        isPosting = false;
        port.post(note("posted", [&] { thread.quit(); }));
    });
    thread.run();
    EXPECT_EQ(log, "delayed posted ");
}

// One thread alone waits for each of its tasks, so that the loop sleeps between them.
TEST_F(RunLoopTest, RunsTheTasksOfOtherThreadsInTheirOrderWhileATimerWaits) {
    after(60s, "late");
    bool isInOrder = true;
    for (const int threads : {1, 4}) {
        int left = threads;
        std::vector<std::thread> posters;
        while (std::ssize(posters) < threads)
            posters.emplace_back([&] {
                constexpr int kTasks = 2000;
                std::counting_semaphore done(0);
                int count = 0;
                for (int i = 0; i < kTasks; ++i) {
                    port.post([&, i] {
                        isInOrder = count++ == i && isInOrder;
                        done.release();
                    });
                    if (threads == 1)
                        done.acquire();
                }
                for (int waits = threads == 1 ? 0 : kTasks; waits > 0; --waits)
                    done.acquire();
                port.post([&] { --left == 0 ? thread.quit() : void(); });
            });
        thread.run();
        for (auto& poster : posters)
            poster.join();
    }
    EXPECT_TRUE(isInOrder);
    EXPECT_EQ(log, "");
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

TEST_F(VirtualMainThreadTest, RunsTasksDueBeforeATimeInOrder) {
    after(30ns, "c");
    after(10ns, "a", [&] {
        after(0ns, "same");
        after(10ns, "tie");  // scheduled after "b"
    });
    after(20ns, "b");
    after(10ns, "a2");
    thread.advanceTo(10ns);
    EXPECT_EQ(log, "");
    thread.advanceTo(11ns);
    EXPECT_EQ(log, "a@10 a2@10 same@10 ");
    EXPECT_EQ(thread.now(), 11ns);
    thread.advanceTo(5ns);
    EXPECT_EQ(thread.now(), 11ns);
    log.clear();
    thread.advanceTo(31ns);
    EXPECT_EQ(log, "b@20 tie@20 c@30 ");
}

TEST_F(VirtualMainThreadTest, RunsPostedTasksRightAfterTheirPoster) {
    after(5ns, "a", [&] { thread.post(note("p", [&] { thread.post(note("q")); })); });
    after(5ns, "b");
    thread.post(note("first"));
    thread.advanceTo(3ns);
    EXPECT_EQ(log, "first@0 ");
    thread.post(note("event", [&] { after(1ns, "between"); }));
    thread.runPosted();
    thread.runRemaining();
    EXPECT_EQ(log, "first@0 event@3 between@4 a@5 p@5 q@5 b@5 ");
    EXPECT_EQ(thread.now(), 5ns);
}

TEST_F(VirtualMainThreadTest, NeverRunsCancelledTasks) {
    handles.reserve(8);
    after(1ns, "cancelsNext", [&] { handles[1].cancel(); });
    after(1ns, "next");
    after(2ns, "cancelsItself", [&] { handles[2].cancel(); });
    after(3ns, "replaced");
    handles[3] = thread.after(4ns, note("replacement"));
    DelayedTask moved = std::move(handles[3]);
    handles[3].cancel();  // holds nothing any more
    { const DelayedTask dropped = thread.after(1ns, note("dropped")); }
    thread.runRemaining();
    EXPECT_EQ(log, "cancelsNext@1 cancelsItself@2 replacement@4 ");
    moved.cancel();
}

TEST(VirtualMainThread, MayBeDestroyedWhileTasksOwnHandles) {
    auto thread = std::make_unique<VirtualMainThread>();
    const auto alive = std::make_shared<int>();
    auto second = std::make_shared<DelayedTask>(thread->after(2ns, [alive] {}));
    auto first = std::make_shared<DelayedTask>(thread->after(1ns, [alive, owned = std::move(second)] {}));
    thread->post([alive, owned = std::move(first)] {});
    thread.reset();
    EXPECT_EQ(alive.use_count(), 1);
}

TEST(WholeNanoseconds, DropsTheFractionAndAbortsOnBadDelays) {
    EXPECT_EQ(wholeNanoseconds(-0.0), 0ns);
    EXPECT_EQ(wholeNanoseconds(1.9999999999), 1'999'999'999ns);
    EXPECT_EQ(wholeNanoseconds(9'223'372'036.0), 9'223'372'036s);
    for (const double bad : {-1e-300, 9'223'372'037.0, std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_DEATH((void)wholeNanoseconds(bad), "is out of range") << bad;
}
