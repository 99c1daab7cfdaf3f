#include "app/GestureDispatcher.h"

#include <gtest/gtest.h>

#include "rules/GestureDescription.h"
#include "rules/RuleMaking.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

/// A dispatcher among fakes. The log tells every gesture with the rule's name before what the desktop was asked.
struct GestureDispatching : ::testing::Test {
    GestureDispatching() {
        dispatcher.setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
            desktop.log.add(describe(gesture) + ": " + (rule ? rule->name : "nothing"));
        });
    }

    void use(std::vector<GestureRule> rules) { store.replaceRules(std::move(rules)); }

    static GestureRule named(const std::string& name, GestureRule rule) {
        rule.name = name;
        rule.showsActionCue = true;
        return rule;
    }

    FakeActionDesktop desktop;
    RuleStore store{desktop.defaults};
    ActionExecutor executor{desktop.ports()};
    GestureDispatcher dispatcher{store, desktop.defaults, executor};
};

TEST_F(GestureDispatching, TellsFirstAndThenPerformsTheFirstRuleWithItsStepsAndItsCue) {
    GestureRule slide = makeRule(GestureKind::edgeSlide, 2, ActionKind::adjustVolume);
    slide.edgeSlideSide = EdgeSlideSide::left;
    use({named("loud", slide), named("first", makeRule(GestureKind::singleTap, 3)),
         named("second", makeRule(GestureKind::singleTap, 3))});
    dispatcher.dispatch(DetectedEdgeSlide{2, EdgeSlideSide::left, -2});
    EXPECT_EQ(desktop.log.takeEffects(),
              (Calls{"2-finger left edge slide down: loud", "cue adjustVolume -2 loud", "post - system 8 10a00 -1",
                     "post - system 8 10b00 -1", "post - system 8 10a00 -1", "post - system 8 10b00 -1"}));
    dispatcher.dispatch(DetectedTap{3, GestureKind::singleTap});
    const Calls tap = desktop.log.takeEffects();
    ASSERT_GE(tap.size(), 3U);
    EXPECT_EQ((Calls{tap[0], tap[1]}), (Calls{"3-finger single tap: first", "cue middleClick 0 first"}));
    dispatcher.dispatch(DetectedAnchorDraw{AnchorCorner::topLeft, DrawPattern::lineUp});
    EXPECT_EQ(desktop.log.takeEffects(), (Calls{"top left line up: nothing"}));
}

TEST_F(GestureDispatching, AnActionMayReplaceTheRulesThatItIsRunFrom) {
    use({named("off", makeRule(GestureKind::singleTap, 2, ActionKind::disableAllRules))});
    const auto observed = desktop.notifications.observe(kAppActionRequested, [this](ActionKind) { use({}); });
    dispatcher.dispatch(DetectedTap{2, GestureKind::singleTap});
    dispatcher.dispatch(DetectedTap{2, GestureKind::singleTap});
    EXPECT_EQ(desktop.log.takeEffects(),
              (Calls{"2-finger single tap: off", "cue disableAllRules 0 off", "2-finger single tap: nothing"}));
}

TEST_F(GestureDispatching, LeavesTheGestureToTheNextRuleWhileShellCommandsAreOff) {
    GestureRule shell = makeRule(GestureKind::tipTapLeft, std::nullopt, ActionKind::shellCommand);
    shell.action.value = "true";
    shell.action.shellCommandAcknowledged = true;
    use({named("shell", shell), named("close", makeRule(GestureKind::tipTapLeft))});
    dispatcher.dispatch(DetectedTap{2, GestureKind::tipTapLeft});
    desktop.defaults.setBoolean("shellCommandActionsEnabled.v1", true);
    dispatcher.dispatch(DetectedTap{2, GestureKind::tipTapLeft});
    const Calls effects = desktop.log.takeEffects();
    EXPECT_EQ(effects.front(), "single tip-tap left: close");
    EXPECT_EQ(effects.back(), "run /bin/zsh [-lc] [true]");
}

TEST(WhyNoRule, NamesTheNearestRuleAndWhatItLacks) {
    const auto tapWith = [](const std::string& name, ActionKind action, bool isEnabled) {
        GestureRule rule = makeRule(GestureKind::singleTap, 3, action);
        rule.name = name;
        rule.isEnabled = isEnabled;
        return rule;
    };
    GestureRule shell = tapWith("", ActionKind::shellCommand, true);
    shell.action.value = "true";
    shell.action.shellCommandAcknowledged = true;
    const DetectedTap tap{3, GestureKind::singleTap};
    const auto why = [](GestureRule rule, const DetectedGesture& gesture) { return whyNoRule({&rule, 1}, gesture); };
    EXPECT_EQ(whyNoRule({}, tap), "no rule is bound to it");
    EXPECT_EQ(why(makeRule(GestureKind::singleTap, 2), tap), "no rule is bound to it");
    EXPECT_EQ(why(tapWith("Paste", ActionKind::middleClick, false), tap), "the rule “Paste” is off");
    EXPECT_EQ(why(tapWith("", ActionKind::openURL, true), tap), "a rule for it has no complete action");
    EXPECT_EQ(why(shell, tap), "a rule for it runs a shell command, and those are switched off");
    GestureRule slide = makeRule(GestureKind::edgeSlide, 2);
    slide.edgeSlideSide = EdgeSlideSide::both;
    EXPECT_EQ(why(slide, DetectedEdgeSlide{2, EdgeSlideSide::right, 1}),
              "a rule for it has an action that a slide cannot run: it can only adjust the volume");
    slide.action.kind = ActionKind::unconfigured;
    EXPECT_EQ(why(slide, DetectedEdgeSlide{2, EdgeSlideSide::right, 1}), "a rule for it has no complete action");
}

}  // namespace
}  // namespace kinesta::testing
