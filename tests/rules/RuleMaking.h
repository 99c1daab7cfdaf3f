#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "rules/GestureRule.h"

namespace kinesta {

/// An enabled rule; ready unless the gesture needs more fields.
inline GestureRule makeRule(GestureKind gesture, std::optional<std::int64_t> fingers = std::nullopt,
                            ActionKind action = ActionKind::middleClick) {
    GestureRule rule;
    rule.id = Uuid::random();
    rule.isEnabled = true;
    rule.gesture = gesture;
    rule.fingerCount = fingers;
    rule.action.kind = action;
    return rule;
}

inline GestureRule makeSlide(std::optional<std::int64_t> fingers, std::optional<EdgeSlideSide> side) {
    GestureRule rule = makeRule(GestureKind::edgeSlide, fingers, ActionKind::adjustVolume);
    rule.edgeSlideSide = side;
    return rule;
}

inline GestureRule makeDrawing(std::optional<AnchorCorner> corner, std::optional<DrawPattern> pattern) {
    GestureRule rule = makeRule(GestureKind::anchorDraw);
    rule.anchorCorner = corner;
    rule.drawPattern = pattern;
    return rule;
}

inline GestureRule makeShellCommand(std::optional<bool> acknowledged) {
    GestureRule rule = makeRule(GestureKind::singleTap, 3, ActionKind::shellCommand);
    rule.action.value = "ls";
    rule.action.shellCommandAcknowledged = acknowledged;
    return rule;
}

inline GestureRule disabled(GestureRule rule) {
    rule.isEnabled = false;
    return rule;
}

inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t place = text.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return text.replace(place, from.size(), to);
}

/// A rule with every field set, with texts that JSON escapes and integers at their limits.
inline GestureRule makeFullRule() {
    GestureRule rule = makeDrawing(AnchorCorner::bottomRight, DrawPattern::circleCounterclockwise);
    rule.name = std::string("a\"\\/\n\x1b\x7fü→😀\u2028\uFFFF ") + '\0';
    rule.isEnabled = false;
    rule.fingerCount = INT64_MIN;
    rule.edgeSlideSide = EdgeSlideSide::both;
    rule.showsActionCue = false;
    rule.action = {ActionKind::shellCommand, 65535, {INT64_MAX}, "ls", std::vector<std::string>{"", "-a"}, "", false};
    return rule;
}

}  // namespace kinesta
