#include "ui/models/RuleEditing.h"

namespace kinesta {
namespace {

struct Take {
    GestureRule& rule;

    void operator()(const DetectedTap& tap) const {
        rule.fingerCount = tap.fingerCount;
        changeGesture(rule, tap.gesture);
    }
    void operator()(const DetectedEdgeSlide& slide) const {
        changeGesture(rule, GestureKind::edgeSlide);
        rule.fingerCount = slide.fingerCount;
        rule.edgeSlideSide = slide.side;
    }
    void operator()(const DetectedAnchorDraw& draw) const {
        changeGesture(rule, GestureKind::anchorDraw);
        rule.anchorCorner = draw.corner;
        rule.drawPattern = draw.pattern;
    }
};

}  // namespace

void changeGesture(GestureRule& rule, GestureKind gesture) {
    rule.gesture = gesture;
    if (isConfigured(gesture) && !usesFingerCount(gesture))
        rule.fingerCount.reset();
    if (gesture != GestureKind::anchorDraw) {
        rule.anchorCorner.reset();
        rule.drawPattern.reset();
    }
    if (gesture == GestureKind::edgeSlide) {
        rule.edgeSlideSide = rule.resolvedEdgeSlideSide();
        rule.action.kind = ActionKind::adjustVolume;
        return;
    }
    rule.edgeSlideSide.reset();
    if (rule.action.kind == ActionKind::adjustVolume)
        rule.action = {};
}

void takeGesture(GestureRule& rule, const DetectedGesture& detected) { std::visit(Take{rule}, detected); }

std::vector<ActionKind> actionKindsFor(GestureKind gesture) {
    if (gesture == GestureKind::edgeSlide)
        return {ActionKind::adjustVolume};
    std::vector<ActionKind> kinds = allCases<ActionKind>();
    std::erase(kinds, ActionKind::adjustVolume);
    return kinds;
}

}  // namespace kinesta
