#include "rules/RuleSelection.h"

#include <gtest/gtest.h>

#include "RuleMaking.h"

namespace kinesta {
namespace {

using enum GestureKind;

// The index of the selected rule, or -1.
std::ptrdiff_t selected(const std::vector<GestureRule>& rules, const DetectedGesture& detected,
                        ShellCommands shellCommands = ShellCommands::forbidden) {
    const GestureRule* rule = selectRule(rules, detected, shellCommands);
    return rule ? rule - rules.data() : -1;
}

TEST(RuleSelection, TakesTheFirstRuleThatQualifies) {
    auto rules = std::vector{makeRule(singleTap, 3), makeRule(singleTap, 3), makeRule(doubleTap, 3)};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), 0);
    rules[0].isEnabled = false;
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), 1);
    rules[1].action = {};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}), -1);
    EXPECT_EQ(selected(rules, DetectedTap{3, doubleTap}), 2);
    EXPECT_EQ(selected({}, DetectedTap{3, singleTap}), -1);
}

TEST(RuleSelection, TakesARuleForItsOwnGestureOnly) {
    using enum EdgeSlideSide;
    const auto none = std::nullopt;
    const DetectedEdgeSlide toTheLeft{3, left, -2}, toTheRight{3, right, 1};
    const auto corner = AnchorCorner::topLeft;
    const auto line = DrawPattern::lineUp;
    const DetectedAnchorDraw drawn{corner, line};
    GestureRule tapWithDrawing = makeDrawing(corner, line);
    tapWithDrawing.gesture = tipTapLeft;
    const std::vector<std::tuple<GestureRule, DetectedGesture, bool>> rows{
        {makeRule(singleTap, 3), DetectedTap{2, singleTap}, false},
        {makeRule(singleTap), DetectedTap{3, singleTap}, false},
        {makeRule(singleClick, 2), DetectedTap{2, singleForceClick}, true},
        {makeRule(singleClick, 2), DetectedTap{3, singleForceClick}, false},
        {makeRule(tipTapLeft), DetectedTap{2, tipTapLeft}, true},
        {makeRule(tipTapLeft, 5), DetectedTap{2, tipTapLeft}, true},
        {makeRule(tipTapLeft), DetectedTap{2, tipTapRight}, false},
        {makeSlide(3, none), toTheLeft, true},
        {makeSlide(3, none), toTheRight, true},
        {makeSlide(3, both), toTheLeft, true},
        {makeSlide(3, right), toTheLeft, false},
        {makeSlide(2, both), toTheLeft, false},
        {makeSlide(none, both), toTheLeft, false},
        {makeRule(edgeSlide, 3, ActionKind::middleClick), toTheLeft, false},
        {makeDrawing(corner, line), drawn, true},
        {makeDrawing(AnchorCorner::topRight, line), drawn, false},
        {makeDrawing(corner, DrawPattern::lineDown), drawn, false},
        {makeDrawing(corner, none), drawn, false},
        {tapWithDrawing, drawn, false},
    };
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(selected({std::get<0>(rows[i])}, std::get<1>(rows[i])) == 0, std::get<2>(rows[i])) << "row " << i;
}

TEST(RuleSelection, SkipsForbiddenShellCommands) {
    auto rules = std::vector{makeShellCommand(true), makeRule(singleTap, 3)};
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::forbidden), 1);
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::allowed), 0);
    rules[0].action.shellCommandAcknowledged.reset();
    EXPECT_EQ(selected(rules, DetectedTap{3, singleTap}, ShellCommands::allowed), 1);
}

}  // namespace
}  // namespace kinesta
