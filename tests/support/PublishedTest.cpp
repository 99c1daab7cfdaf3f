#include "support/Published.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace kinesta;

namespace {

using Heard = std::vector<std::string>;

/// Logs each call of an observer as "name=value".
struct PublishedTest : testing::Test {
    Published<int>::Observer hear(std::string name, std::function<void(int)> then = {}) {
        return [this, name, then](int value) {
            heard.push_back(name + "=" + std::to_string(value));
            if (then)
                then(value);
        };
    }

    Heard heard;
    Published<int> number{7};
};

}  // namespace

TEST_F(PublishedTest, CallsObserversInOrderOfSubscription) {
    const auto a = number.observe(hear("a"));
    auto b = number.observe(hear("b"));
    EXPECT_EQ(heard, Heard());
    number.set(7);
    b.end();
    b.end();
    number.set(8);
    EXPECT_EQ(heard, (Heard{"a=7", "b=7", "a=8"}));
}

TEST_F(PublishedTest, LetsSubscriptionsEndDuringNotification) {
    Subscription own, later;
    own = number.observe(hear("own", [&](int) { own.end(); }));
    const auto killer = number.observe(hear("killer", [&](int) { later.end(); }));
    later = number.observe(hear("later"));
    number.set(1);
    number.set(2);
    EXPECT_EQ(heard, (Heard{"own=1", "killer=1", "killer=2"}));
}

TEST_F(PublishedTest, DeliversNestedChangesOnce) {
    std::vector<Subscription> added;
    const auto before = number.observe(hear("before"));
    const auto setter = number.observe(hear("setter", [&](int value) {
        for (int i = 0; value == 3 && i < 50; ++i)  // enough that the list of observers moves
            added.push_back(number.observe(hear("new")));
        if (value < 3)
            number.set(value + 1);
    }));
    const auto after = number.observe(hear("after"));
    number.set(1);
    EXPECT_EQ(heard, (Heard{"before=1", "setter=1", "before=2", "setter=2", "before=3", "setter=3", "after=3"}));
    EXPECT_EQ(number.value(), 3);
    heard.clear();
    added.resize(2);
    number.set(4);
    EXPECT_EQ(heard, (Heard{"before=4", "setter=4", "after=4", "new=4", "new=4"}));
}

TEST_F(PublishedTest, FreesObserversWithTheirSubscriptions) {
    const auto held = std::make_shared<int>();
    const auto observer = [&] { return std::make_shared<Subscription>(number.observe([held](int) {})); };
    Subscription alone = number.observe([held](int) {});
    Subscription both = number.observe([held, other = observer()](int) {});  // whose end ends another
    EXPECT_EQ(held.use_count(), 4);
    alone.end();
    both.end();
    EXPECT_EQ(held.use_count(), 1);
    alone = number.observe([&alone, held, other = observer()](int) { alone.end(); });
    number.set(1);
    EXPECT_EQ(held.use_count(), 1) << "also if they end during a notification";
}

TEST_F(PublishedTest, LetsSubscriptionsMoveAndOutliveTheValue) {
    auto published = std::make_unique<Published<int>>();
    Subscription kept = published->observe(hear("first"));
    kept = published->observe(hear("second"));  // ends the first
    const Subscription moved = std::move(kept);
    published->set(1);
    EXPECT_EQ(heard, (Heard{"second=1"}));
    published.reset();
}
