#include "ui/models/OverviewModel.h"

#include <gtest/gtest.h>

#include "rules/RuleMaking.h"
#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

TEST(OverviewModel, WordsEveryStateAndTheLastGesture) {
    GestureRig rig;
    RuleStore store(rig.defaults);
    GestureTestSession session;
    MultitouchService& service = rig.launch();
    OverviewModel model({store, service, session, [] { return false; }, /*isFirstLaunch=*/true});
    const auto state = [&] { return model.content().value().headline + " | " + model.content().value().statusLine; };
    const auto invites = [&](const char* how) {
        return model.content().value().invitation.find(how) != std::string::npos;
    };
    const auto last = [&]() -> const LastGesture& { return *model.content().value().lastGesture; };
    EXPECT_EQ(state(), "Welcome to Kinesta | Listening for 1 enabled gesture rule.");
    store.addRule();
    EXPECT_EQ(state(), "Ready for your gestures | Listening for 1 enabled gesture rule.");
    EXPECT_TRUE(invites("Touch the pad"));
    store.disableAllRules();
    EXPECT_EQ(state(), "Listening, with no rule on | Listening for 0 enabled gesture rules.");
    service.onEveryGesture([&](const DetectedGesture& gesture) {
        model.gestureDispatched(gesture, selectRule(store.rules().value(), gesture, ShellCommands::allowed));
    });
    PadScript taps;
    taps.at(0).down(1, {0.4, 0.5}).down(2, {0.5, 0.5}).down(3, {0.6, 0.5}).at(0.1).up(1).up(2).up(3);
    rig.play(taps);
    rig.runUntil(1);
    EXPECT_EQ(last().text + ": " + last().outcome, "Detected 3-finger single tap: The rule “Middle click” is off");
    EXPECT_EQ(last().rule, store.rules().value()[0].id);
    store.deleteRules({*last().rule});
    EXPECT_FALSE(last().rule);
    rig.runUntil(3);
    EXPECT_EQ(last().secondsLeft, 3);
    rig.runUntil(7);
    EXPECT_FALSE(model.content().value().lastGesture);
    model.gestureDispatched(DetectedTap{4, GestureKind::singleTap}, nullptr);
    EXPECT_EQ(last().outcome, "No rule uses it");
    service.setGestureEnabled(false);
    EXPECT_EQ(state(), "Gestures are off | Turn gesture recognition on in Settings to use your rules.");
    EXPECT_TRUE(invites("switch it on"));
    rig.provider.statusAfterStart = TrackpadContactProviderStatus::unavailable("No trackpad.");
    service.setGestureEnabled(true);
    EXPECT_EQ(state(), "The trackpad cannot be read | No trackpad.");
    EXPECT_TRUE(invites("says what helps"));
    service.stop();
    EXPECT_EQ(state(), "The trackpad is not being read | Open Settings to review gesture recognition.");
}

}  // namespace
}  // namespace kinesta::testing
