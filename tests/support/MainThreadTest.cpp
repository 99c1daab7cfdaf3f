#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "support/MainLoopContract.h"
#include "support/RunLoop.h"
#include "support/VirtualMainThread.h"

using namespace kinesta;
using namespace std::chrono_literals;

namespace {

struct RunLoopRig {
    using Loop = RunLoop;
    using Base = testing::Test;
};

using VirtualMainThreadTest = LoggedThread<VirtualMainThread>;

}  // namespace

namespace kinesta {
INSTANTIATE_TYPED_TEST_SUITE_P(RunLoop, MainLoopContract, RunLoopRig);
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
