#include "app/GestureDispatcher.h"

#include <gtest/gtest.h>

#include "rules/GestureDescription.h"
#include "rules/RuleMaking.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

GestureRule named(const std::string& name, GestureRule rule) {
    rule.name = name;
    return rule;
}

/// A dispatcher on a fake desktop. The log holds every gesture with its rule's name, then the calls to the desktop.
struct GestureDispatching : ::testing::Test {
    GestureDispatching() {
        dispatcher.setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
            desktop.log.add(describe(gesture) + ": " + (rule ? rule->name : "nothing"));
        });
    }
    Calls dispatch(const DetectedGesture& gesture) {
        dispatcher.dispatch(gesture);
        return desktop.log.takeEffects();
    }

    FakeActionDesktop desktop;
    RuleStore store{desktop.defaults};
    ActionExecutor executor{desktop.ports()};
    GestureTestSession testSession;
    GestureDispatcher dispatcher{store, desktop.defaults, executor, testSession};
};

TEST_F(GestureDispatching, PerformsTheFirstRuleWithItsStepsAndCue) {
    store.replaceRules({named("volume", makeSlide(2, EdgeSlideSide::left)),
                        named("first", makeRule(GestureKind::singleTap, 3)),
                        named("second", makeRule(GestureKind::singleTap, 3))});
    EXPECT_EQ(dispatch(DetectedEdgeSlide{2, EdgeSlideSide::left, -2}),
              (Calls{"2-finger left edge slide down: volume", "cue adjustVolume -2 volume", "post - system 8 10a00 -1",
                     "post - system 8 10b00 -1", "post - system 8 10a00 -1", "post - system 8 10b00 -1"}));
    Calls tap = dispatch(DetectedTap{3, GestureKind::singleTap});
    tap.resize(2);
    EXPECT_EQ(tap, (Calls{"3-finger single tap: first", "cue middleClick 0 first"}));
    EXPECT_EQ(dispatch(DetectedAnchorDraw{AnchorCorner::topLeft, DrawPattern::lineUp}),
              Calls{"top left line up: nothing"});
}

TEST_F(GestureDispatching, RunsNoRuleForWhatTheTestSessionTakes) {
    store.replaceRules(
        {named("volume", makeSlide(2, EdgeSlideSide::left)), named("tap", makeRule(GestureKind::singleTap, 3))});
    testSession.begin();
    EXPECT_EQ(dispatch(DetectedEdgeSlide{2, EdgeSlideSide::left, 1}), Calls{"2-finger left edge slide up: nothing"});
    EXPECT_EQ(dispatch(DetectedTap{3, GestureKind::singleTap}), Calls{"3-finger single tap: nothing"});
    testSession.end();
    EXPECT_EQ(dispatch(DetectedTap{3, GestureKind::singleTap}).front(), "3-finger single tap: tap");
}

TEST_F(GestureDispatching, LetsAnActionReplaceTheRules) {
    store.replaceRules({named("off", makeRule(GestureKind::singleTap, 2, ActionKind::disableAllRules))});
    const auto observed =
        desktop.notifications.observe(kAppActionRequested, [this](ActionKind) { store.replaceRules({}); });
    EXPECT_EQ(dispatch(DetectedTap{2, GestureKind::singleTap}),
              (Calls{"2-finger single tap: off", "cue disableAllRules 0 off"}));
    EXPECT_EQ(dispatch(DetectedTap{2, GestureKind::singleTap}), Calls{"2-finger single tap: nothing"});
}

TEST_F(GestureDispatching, ReadsTheShellCommandSwitchForEachGesture) {
    store.replaceRules({named("shell", makeShellCommand(true)), named("click", makeRule(GestureKind::singleTap, 3))});
    EXPECT_EQ(dispatch(DetectedTap{3, GestureKind::singleTap}).front(), "3-finger single tap: click");
    desktop.defaults.setBoolean("shellCommandActionsEnabled.v1", true);
    EXPECT_EQ(dispatch(DetectedTap{3, GestureKind::singleTap}).back(), "run /bin/zsh [-lc] [ls]");
}

TEST(WhyNoRule, NamesTheNearestRuleAndWhatItLacks) {
    const auto why = [](GestureRule rule, const DetectedGesture& gesture) { return whyNoRule({&rule, 1}, gesture); };
    const DetectedTap tap{3, GestureKind::singleTap};
    const DetectedEdgeSlide slide{2, EdgeSlideSide::right, 1};
    EXPECT_EQ(whyNoRule({}, tap), "no rule is bound to it");
    EXPECT_EQ(why(makeRule(GestureKind::singleTap, 2), tap), "no rule is bound to it");
    EXPECT_EQ(why(named("Paste", disabled(makeRule(GestureKind::singleTap, 3))), tap), "the rule “Paste” is off");
    EXPECT_EQ(why(makeRule(GestureKind::singleTap, 3, ActionKind::openURL), tap),
              "a rule for it has no complete action");
    EXPECT_EQ(why(makeShellCommand(true), tap), "a rule for it runs a shell command, and those are switched off");
    EXPECT_EQ(why(makeRule(GestureKind::edgeSlide, 2), slide),
              "a rule for it has an action that a slide cannot run: it can only adjust the volume");
    EXPECT_EQ(why(makeRule(GestureKind::edgeSlide, 2, ActionKind::unconfigured), slide),
              "a rule for it has no complete action");
}

}  // namespace
}  // namespace kinesta::testing
