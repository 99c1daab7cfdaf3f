#include "support/VirtualMainThread.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

using namespace kinesta;
using namespace std::chrono_literals;

namespace {

using Log = std::vector<std::string>;

class VirtualMainThreadTest : public testing::Test {
  protected:
    /// A task that notes its name and the time, then does `then`.
    MainThread::Task note(std::string name, MainThread::Task then = {}) {
        return [this, name, then] {
            log.push_back(name + "@" + std::to_string(thread.now().count()));
            if (then)
                then();
        };
    }
    void after(std::chrono::nanoseconds delay, std::string name, MainThread::Task then = {}) {
        handles.push_back(thread.after(delay, note(std::move(name), std::move(then))));
    }

    Log log;
    VirtualMainThread thread;
    std::vector<DelayedTask> handles;
};

}  // namespace

TEST_F(VirtualMainThreadTest, runsWhatIsDueStrictlyBeforeInOrderOfDueTimesThenOfScheduling) {
    after(30ns, "c");
    after(10ns, "a1");
    after(10ns, "a2");
    after(20ns, "b");
    thread.advanceTo(10ns);
    EXPECT_EQ(log, Log());
    thread.advanceTo(11ns);
    EXPECT_EQ(log, (Log{"a1@10", "a2@10"}));
    EXPECT_EQ(thread.now(), 11ns);
    thread.advanceTo(5ns);
    EXPECT_EQ(thread.now(), 11ns);
    after(0ns, "now");
    thread.advanceTo(11ns);
    thread.advanceTo(31ns);
    EXPECT_EQ(log, (Log{"a1@10", "a2@10", "now@11", "b@20", "c@30"}));
}

TEST_F(VirtualMainThreadTest, runsWhatATaskPostsRightAfterIt) {
    after(5ns, "a", [&] { thread.post(note("p", [&] { thread.post(note("q")); })); });
    after(5ns, "b");
    thread.post(note("first"));
    EXPECT_EQ(log, Log());
    thread.advanceTo(3ns);
    EXPECT_EQ(log, (Log{"first@0"}));
    thread.post(note("event", [&] { after(1ns, "between"); }));
    thread.runPosted();
    thread.runRemaining();
    EXPECT_EQ(log, (Log{"first@0", "event@3", "between@4", "a@5", "p@5", "q@5", "b@5"}));
    EXPECT_EQ(thread.now(), 5ns);
}

TEST_F(VirtualMainThreadTest, workScheduledMeanwhileTakesItsPlace) {
    after(10ns, "a", [&] {
        after(0ns, "same");
        after(5ns, "tie");  // after "b", which was scheduled first
        after(2ns, "soon", [&] { after(8ns, "atEnd"); });
    });
    after(15ns, "b");
    after(10ns, "a2");
    thread.advanceTo(20ns);
    EXPECT_EQ(log, (Log{"a@10", "a2@10", "same@10", "soon@12", "b@15", "tie@15"}));
    thread.runRemaining();
    EXPECT_EQ(log.back(), "atEnd@20");
}

TEST_F(VirtualMainThreadTest, cancelledWorkNeverRuns) {
    handles.reserve(8);
    after(1ns, "killsNext", [&] { handles[1].cancel(); });
    after(1ns, "victim");
    after(2ns, "killsItself", [&] { handles[2].cancel(); });
    after(3ns, "replaced");
    handles[3] = thread.after(4ns, note("replacement"));
    DelayedTask moved = std::move(handles[3]);
    handles[3].cancel();  // holds nothing any more
    { const DelayedTask dropped = thread.after(1ns, note("dropped")); }
    thread.runRemaining();
    EXPECT_EQ(log, (Log{"killsNext@1", "killsItself@2", "replacement@4"}));
    moved.cancel();
}

TEST_F(VirtualMainThreadTest, timeEndsInsteadOfOverflowing) {
    thread.advanceTo(100ns);
    after(std::chrono::nanoseconds::max(), "end");
    after(std::chrono::nanoseconds::max() - 100ns, "alsoEnd");
    after(std::chrono::nanoseconds::max() - 101ns, "last");
    thread.advanceTo(std::chrono::nanoseconds::max());
    EXPECT_EQ(log, (Log{"last@9223372036854775806"}));
    thread.runRemaining();
    EXPECT_EQ(log.size(), 3u);
    EXPECT_EQ(log[2], "alsoEnd@9223372036854775807");
}

TEST(VirtualMainThread, mayGoWhileTasksHoldHandlesOfEachOther) {
    auto thread = std::make_unique<VirtualMainThread>();
    const auto alive = std::make_shared<int>();
    auto second = std::make_shared<DelayedTask>(thread->after(2ns, [alive] {}));
    auto first = std::make_shared<DelayedTask>(thread->after(1ns, [alive, second] {}));
    thread->post([alive, first] {});
    second.reset();
    first.reset();
    thread.reset();
    EXPECT_EQ(alive.use_count(), 1);
}

TEST(WholeNanoseconds, dropTheFractionAndRefuseWhatCannotBeWaitedFor) {
    EXPECT_EQ(wholeNanoseconds(0), 0ns);
    EXPECT_EQ(wholeNanoseconds(-0.0), 0ns);
    EXPECT_EQ(wholeNanoseconds(0.25), 250ms);
    EXPECT_EQ(wholeNanoseconds(1.9999999999), 1'999'999'999ns);
    EXPECT_EQ(wholeNanoseconds(9'223'372'036.0), 9'223'372'036s);
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double bad : {-1e-9, -1e-300, 9'223'372'037.0, 1e300, kInfinity, -kInfinity, std::nan("")})
        EXPECT_DEATH((void)wholeNanoseconds(bad), "cannot be waited for") << bad;
}
