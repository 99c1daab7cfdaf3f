#include "rules/RuleSelection.h"

#include <gtest/gtest.h>

#include "RuleMaking.h"

namespace kinesta {
namespace {

using enum GestureKind;

// The place of the selected rule in the list, or -1.
std::ptrdiff_t selected(const std::vector<GestureRule>& rules, const DetectedGesture& detected,
                        ShellCommands shellCommands = ShellCommands::forbidden) {
    const GestureRule* rule = selectRule(rules, detected, shellCommands);
    return rule ? rule - rules.data() : -1;
}

GestureRule slideRule(std::int64_t fingers, std::optional<EdgeSlideSide> side) {
    GestureRule rule = makeRule(edgeSlide, fingers, ActionKind::adjustVolume);
    rule.edgeSlideSide = side;
    return rule;
}

GestureRule drawRule(std::optional<AnchorCorner> corner, std::optional<DrawPattern> pattern) {
    GestureRule rule = makeRule(anchorDraw);
    rule.anchorCorner = corner;
    rule.drawPattern = pattern;
    return rule;
}

TEST(RuleSelection, TheFirstRuleThatQualifiesRuns) {
    auto rules = std::vector{makeRule(singleTap, 3), makeRule(singleTap, 3), makeRule(doubleTap, 3)};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), 0);
    rules[0].isEnabled = false;
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), 1);
    rules[1].action = {};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), -1);
    EXPECT_EQ(selected(rules, DetectedTap{3, doubleTap}), 2);
    EXPECT_EQ(selected({}, DetectedTap{3, singleTap}), -1);
}

TEST(RuleSelection, TapsAndClicksNeedTheirFingersAndTipTapsNone) {
    struct Case {
        GestureRule rule;
        DetectedTap detected;
        bool runs;
    };
    for (const Case& c : std::vector<Case>{
             {makeRule(singleTap, 3), {2, singleTap}, false},
             {makeRule(singleTap), {0, singleTap}, false},
             {makeRule(singleTap), {3, singleTap}, false},
             {makeRule(singleClick, 2), {2, singleForceClick}, true},
             {makeRule(singleClick, 2), {3, singleForceClick}, false},
             {makeRule(singleClick, 2), {2, doubleForceClick}, false},
             {makeRule(singleForceClick, 2), {2, singleClick}, false},
             {makeRule(singleForceClick, 2), {2, singleSoftClick}, false},
             {makeRule(tipTapLeft), {2, tipTapLeft}, true},
             {makeRule(tipTapLeft, 5), {2, tipTapLeft}, true},
             {makeRule(tipTapLeft), {2, tipTapRight}, false},
         })
        EXPECT_EQ(selected({c.rule}, c.detected) == 0, c.runs)
            << rawValue(c.rule.gesture) << " for " << c.detected.fingerCount << " " << rawValue(c.detected.gesture);
}

TEST(RuleSelection, ASlideAdjustsTheVolumeAndNothingElse) {
    const DetectedEdgeSlide left{3, EdgeSlideSide::left, -2};
    const DetectedEdgeSlide right{3, EdgeSlideSide::right, 1};
    const auto sides = [&](const GestureRule& rule) {
        return std::string(selected({rule}, left) == 0 ? "L" : "") + (selected({rule}, right) == 0 ? "R" : "");
    };
    EXPECT_EQ(sides(slideRule(3, std::nullopt)), "LR");
    EXPECT_EQ(sides(slideRule(3, EdgeSlideSide::both)), "LR");
    EXPECT_EQ(sides(slideRule(3, EdgeSlideSide::left)), "L");
    EXPECT_EQ(sides(slideRule(3, EdgeSlideSide::right)), "R");
    EXPECT_EQ(sides(slideRule(2, EdgeSlideSide::both)), "");
    GestureRule rule = slideRule(3, EdgeSlideSide::both);
    rule.fingerCount.reset();
    EXPECT_EQ(sides(rule), "");
    EXPECT_EQ(sides(makeRule(edgeSlide, 3, ActionKind::middleClick)), "");
    EXPECT_EQ(sides(makeRule(singleTap, 3, ActionKind::adjustVolume)), "");
    rule = slideRule(3, EdgeSlideSide::both);
    rule.isEnabled = false;
    EXPECT_EQ(sides(rule), "");
}

TEST(RuleSelection, ADrawingNeedsItsCornerAndPattern) {
    const DetectedAnchorDraw detected{AnchorCorner::topLeft, DrawPattern::lineUp};
    EXPECT_EQ(selected({drawRule(AnchorCorner::topLeft, DrawPattern::lineUp)}, detected), 0);
    EXPECT_EQ(selected({drawRule(AnchorCorner::topRight, DrawPattern::lineUp),
                        drawRule(AnchorCorner::topLeft, DrawPattern::lineDown),
                        drawRule(std::nullopt, DrawPattern::lineUp), drawRule(AnchorCorner::topLeft, std::nullopt)},
                       detected),
              -1);
    GestureRule tap = drawRule(AnchorCorner::topLeft, DrawPattern::lineUp);
    tap.gesture = tipTapLeft;
    EXPECT_EQ(selected({tap}, detected), -1);
}

TEST(RuleSelection, AForbiddenShellCommandLeavesTheGestureToTheNextRule) {
    GestureRule shell = makeRule(singleTap, 3, ActionKind::shellCommand);
    shell.action.value = "ls";
    shell.action.shellCommandAcknowledged = true;
    auto rules = std::vector{shell, makeRule(singleTap, 3)};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::forbidden), 1);
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::allowed), 0);
    rules[0].action.shellCommandAcknowledged.reset();
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::allowed), 1);
}

}  // namespace
}  // namespace kinesta
