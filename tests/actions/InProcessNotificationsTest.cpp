#include "actions/InProcessNotifications.h"

#include <gtest/gtest.h>

#include <optional>

namespace kinesta {
namespace {

struct InProcessNotificationsTest : ::testing::Test {
    InProcessNotifications notifications;
    std::string heard;

    ApplicationNotifications::Observer hearing(std::string who) {
        return [this, who](ActionKind kind) { heard += who + ' ' + std::string(rawValue(kind)) + "; "; };
    }
};

TEST_F(InProcessNotificationsTest, CallsTheObserversOfTheNameInOrder) {
    notifications.post("a", ActionKind::disableAllRules);
    auto first = notifications.observe("a", hearing("first"));
    const auto other = notifications.observe("b", hearing("other"));
    const auto second = notifications.observe("a", hearing("second"));
    notifications.post("a", ActionKind::disableAllRules);
    first.end();
    notifications.post("a", ActionKind::closeWindow);
    EXPECT_EQ(heard, "first disableAllRules; second disableAllRules; second closeWindow; ");
}

TEST_F(InProcessNotificationsTest, LetsObserversPostSubscribeAndUnsubscribe) {
    std::optional<Subscription> late;
    std::optional<Subscription> victim;
    Subscription self;
    self = notifications.observe("a", [&](ActionKind kind) {
        heard += "self; ";
        self.end();
        victim.reset();
        late = notifications.observe("a", hearing("late"));
        if (kind == ActionKind::disableAllRules)
            notifications.post("a", ActionKind::middleClick);
    });
    victim = notifications.observe("a", hearing("victim"));
    const auto last = notifications.observe("a", hearing("last"));
    notifications.post("a", ActionKind::disableAllRules);
    EXPECT_EQ(heard, "self; last middleClick; late middleClick; last disableAllRules; ");
}

}  // namespace
}  // namespace kinesta
