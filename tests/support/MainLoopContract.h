#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/MainLoop.h"
#include "support/SteadyClock.h"

namespace kinesta {

using namespace std::chrono_literals;

/// A main thread and a log of the tasks that have run.
template <typename Thread, typename Base = testing::Test>
struct LoggedThread : Base {
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

/// What every main loop of a program keeps. A rig names a `Loop` and the `Base` of its tests.
template <typename Rig>
struct MainLoopContract : LoggedThread<typename Rig::Loop, typename Rig::Base> {};

TYPED_TEST_SUITE_P(MainLoopContract);

TYPED_TEST_P(MainLoopContract, EndsOneRunPerQuitAndKeepsTheRest) {
    this->thread.quit();
    this->port.post(this->note("a", [&] { this->thread.quit(); }));
    this->port.post(this->note("b", [&] { this->thread.quit(); }));
    for (const char* const expected : {"", "a ", "a b "}) {
        this->thread.run();
        EXPECT_EQ(this->log, expected);
    }
}

TYPED_TEST_P(MainLoopContract, RunsDelayedWorkInOrderWhenItIsDue) {
    const SteadyClock clock;
    const Uptime start = clock.uptime();
    this->after(5ms, "cancelled");
    this->after(20ms, "20ms", [&] { this->thread.quit(); });
    this->after(1ms, "1ms");
    this->after(2ms, "2ms", [&] { this->handles[0].cancel(); });
    this->after(std::chrono::nanoseconds::max(), "never");
    this->after(0ns, "0ms");
    this->thread.run();
    EXPECT_EQ(this->log, "0ms 1ms 2ms 20ms ");
    EXPECT_GE(clock.uptime() - start, 0.020);
}

TYPED_TEST_P(MainLoopContract, StarvesNeitherPostedNorDelayedWork) {
    bool isPosting = true;
    const MainThread::Task again = [&] {
        isPosting ? this->port.post(again) : this->handles.push_back(this->port.after(0ns, again));
    };
    this->port.post(again);
    this->after(1ms, "delayed", [&] {
        isPosting = false;
        this->port.post(this->note("posted", [&] { this->thread.quit(); }));
    });
    this->thread.run();
    EXPECT_EQ(this->log, "delayed posted ");
}

// One thread alone waits for each of its tasks, so that the loop sleeps between them.
TYPED_TEST_P(MainLoopContract, RunsTheTasksOfOtherThreadsInTheirOrderWhileATimerWaits) {
    this->after(60s, "late");
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
                    this->port.post([&, i] {
                        isInOrder = count++ == i && isInOrder;
                        done.release();
                    });
                    if (threads == 1)
                        done.acquire();
                }
                for (int waits = threads == 1 ? 0 : kTasks; waits > 0; --waits)
                    done.acquire();
                this->port.post([&] { --left == 0 ? this->thread.quit() : void(); });
            });
        this->thread.run();
        for (auto& poster : posters)
            poster.join();
    }
    EXPECT_TRUE(isInOrder);
    EXPECT_EQ(this->log, "");
}

TYPED_TEST_P(MainLoopContract, MayBeDestroyedAsSoonAsRunReturns) {
    for (int round = 0; round < 200; ++round) {
        auto loop = std::make_unique<typename TypeParam::Loop>();
        std::thread other([&target = *loop] { target.quit(); });
        loop->run();
        loop.reset();
        other.join();
    }
}

// A lock held by mistake shows as a hang until the test's time limit.
TYPED_TEST_P(MainLoopContract, HoldsNoLockWhileATaskRunsOrIsDestroyed) {
    auto& loop = this->thread;
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

REGISTER_TYPED_TEST_SUITE_P(MainLoopContract, EndsOneRunPerQuitAndKeepsTheRest, RunsDelayedWorkInOrderWhenItIsDue,
                            StarvesNeitherPostedNorDelayedWork, RunsTheTasksOfOtherThreadsInTheirOrderWhileATimerWaits,
                            MayBeDestroyedAsSoonAsRunReturns, HoldsNoLockWhileATaskRunsOrIsDestroyed);

}  // namespace kinesta
