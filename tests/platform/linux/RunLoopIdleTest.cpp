#include <gtest/gtest.h>
#include <sys/resource.h>

#include "support/RunLoop.h"

using namespace kinesta;
using namespace std::chrono_literals;

TEST(RunLoopIdle, SleepsUntilTheNextTaskIsDue) {
    const auto sleeps = [] {
        rusage usage{};
        ::getrusage(RUSAGE_THREAD, &usage);
        return usage.ru_nvcsw;
    };
    RunLoop loop;
    DelayedTask cancelled = loop.after(20ms, [] { ADD_FAILURE() << "a cancelled task ran"; });
    cancelled.cancel();
    const DelayedTask last = loop.after(100ms, [&] { loop.quit(); });
    const long before = sleeps();
    loop.run();
    EXPECT_EQ(sleeps() - before, 1);
}
