#include "actions/InProcessNotifications.h"

#include <gtest/gtest.h>

#include <optional>

namespace kinesta {
namespace {

struct InProcessNotificationsTest : ::testing::Test {
    InProcessNotifications notifications;
    std::vector<std::string> heard;

    ApplicationNotifications::Observer hearing(std::string who) {
        return [this, who](ActionKind kind) { heard.push_back(who + ' ' + std::string(rawValue(kind))); };
    }
};

TEST_F(InProcessNotificationsTest, TellsThoseWhoObserveTheNameInTheOrderInWhichTheyCame) {
    notifications.post("a", ActionKind::disableAllRules);
    auto first = notifications.observe("a", hearing("first"));
    const auto other = notifications.observe("b", hearing("other"));
    const auto second = notifications.observe("a", hearing("second"));
    notifications.post("a", ActionKind::disableAllRules);
    EXPECT_EQ(heard, (std::vector<std::string>{"first disableAllRules", "second disableAllRules"}));
    heard.clear();
    first.end();
    notifications.post("a", ActionKind::closeWindow);
    EXPECT_EQ(heard, std::vector<std::string>{"second closeWindow"});
}

TEST_F(InProcessNotificationsTest, LetsObserversPostComeAndGoWhileTheyAreCalled) {
    std::optional<Subscription> late;
    std::optional<Subscription> victim;
    Subscription self;
    self = notifications.observe("a", [&](ActionKind kind) {
        heard.push_back("self");
        self.end();
        victim.reset();
        late = notifications.observe("a", hearing("late"));
        if (kind == ActionKind::disableAllRules)
            notifications.post("a", ActionKind::middleClick);
    });
    victim = notifications.observe("a", hearing("victim"));
    const auto last = notifications.observe("a", hearing("last"));
    notifications.post("a", ActionKind::disableAllRules);
    EXPECT_EQ(heard,
              (std::vector<std::string>{"self", "last middleClick", "late middleClick", "last disableAllRules"}));
}

}  // namespace
}  // namespace kinesta
