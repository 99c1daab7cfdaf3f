#include "rules/RuleSelection.h"

namespace kinesta {
namespace {

bool accepts(const GestureRule& rule, const DetectedTap& tap) {
    return matches(rule.gesture, tap.gesture) &&
           (!usesFingerCount(rule.gesture) || rule.fingerCount == tap.fingerCount);
}

bool accepts(const GestureRule& rule, const DetectedEdgeSlide& slide) {
    return rule.gesture == GestureKind::edgeSlide && rule.action.kind == ActionKind::adjustVolume &&
           rule.fingerCount == slide.fingerCount && matches(rule.resolvedEdgeSlideSide(), slide.side);
}

bool accepts(const GestureRule& rule, const DetectedAnchorDraw& draw) {
    return rule.gesture == GestureKind::anchorDraw && rule.anchorCorner == draw.corner &&
           rule.drawPattern == draw.pattern;
}

// Cheap comparisons first: the scan delays the action. isConfigured() comes last because it trims text.
template <typename Detected>
const GestureRule* firstRule(std::span<const GestureRule> rules, const Detected& detected,
                             ShellCommands shellCommands) {
    for (const GestureRule& rule : rules) {
        if (!rule.isEnabled || !accepts(rule, detected))
            continue;
        if (rule.action.kind == ActionKind::shellCommand && shellCommands == ShellCommands::forbidden)
            continue;
        if (rule.action.isConfigured())
            return &rule;
    }
    return nullptr;
}

}  // namespace

const GestureRule* selectRule(std::span<const GestureRule> rules, const DetectedGesture& detected,
                              ShellCommands shellCommands) {
    return std::visit([&](const auto& gesture) { return firstRule(rules, gesture, shellCommands); }, detected);
}

}  // namespace kinesta
