#include <gtest/gtest.h>
#include <sys/resource.h>

#include "support/RunLoop.h"

using namespace kinesta;
using namespace std::chrono_literals;

TEST(RunLoopIdle, sleepsThroughUntilTheNextTaskIsDue) {
    const auto timesSlept = [] {
        rusage usage{};
        ::getrusage(RUSAGE_THREAD, &usage);
        return usage.ru_nvcsw;
    };
    RunLoop loop;
    long before = 0;
    DelayedTask cancelled;
    const DelayedTask first = loop.after(0ns, [&] {
        cancelled.cancel();
        before = timesSlept();
    });
    cancelled = loop.after(20ms, [] { ADD_FAILURE() << "a cancelled task ran"; });
    const DelayedTask last = loop.after(100ms, [&] {
        EXPECT_EQ(timesSlept() - before, 1);
        loop.quit();
    });
    loop.run();
}
