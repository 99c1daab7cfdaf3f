#include "rules/GestureDescription.h"

#include "support/Text.h"

namespace kinesta {
namespace {

std::string withFingers(std::int64_t count, const std::string& text) {
    return std::to_string(count) + "-finger " + text;
}

template <typename E>
std::string titleOrDots(const std::optional<E>& value) {
    return value ? lowerCased(title(*value)) : "…";
}

struct Describe {
    std::string operator()(const DetectedTap& tap) const {
        const std::string text = lowerCased(title(tap.gesture));
        return usesFingerCount(tap.gesture) ? withFingers(tap.fingerCount, text) : text;
    }
    std::string operator()(const DetectedEdgeSlide& slide) const {
        return withFingers(slide.fingerCount,
                           lowerCased(title(slide.side)) + " edge slide " + (slide.steps >= 1 ? "up" : "down"));
    }
    std::string operator()(const DetectedAnchorDraw& draw) const {
        return lowerCased(title(draw.corner)) + " " + lowerCased(title(draw.pattern));
    }
};

}  // namespace

std::string describe(const DetectedGesture& detected) { return std::visit(Describe{}, detected); }

std::string describeTrigger(const GestureRule& rule) {
    if (!isConfigured(rule.gesture))
        return "…";
    std::string text = lowerCased(title(rule.gesture));
    if (usesFingerCount(rule.gesture))
        text = (rule.fingerCount ? std::to_string(*rule.fingerCount) : std::string("…")) + "-finger " + text;
    if (rule.gesture == GestureKind::edgeSlide)
        text += rule.resolvedEdgeSlideSide() == EdgeSlideSide::both ? ", both edges"
                                                                    : ", " + titleOrDots(rule.edgeSlideSide) + " edge";
    if (rule.gesture == GestureKind::anchorDraw)
        text += ", " + titleOrDots(rule.anchorCorner) + ", " + titleOrDots(rule.drawPattern);
    return text;
}

std::string describeConsequence(const GestureRule& rule) {
    const std::string action = rule.action.summary();
    return rule.name.empty() || rule.name == action ? action : action + "  (" + rule.name + ")";
}

const GestureRule* ruleForGesture(std::span<const GestureRule> rules, const DetectedGesture& detected) {
    for (const GestureRule& rule : rules) {
        GestureRule completed = rule;
        completed.isEnabled = true;
        const bool isSlide = rule.gesture == GestureKind::edgeSlide;
        if (isSlide || !completed.action.isConfigured())
            completed.action.kind = isSlide ? ActionKind::adjustVolume : ActionKind::middleClick;
        if (selectRule({&completed, 1}, detected, ShellCommands::allowed) != nullptr)
            return &rule;
    }
    return nullptr;
}

std::string whyNoRule(std::span<const GestureRule> rules, const DetectedGesture& detected) {
    const GestureRule* rule = ruleForGesture(rules, detected);
    if (rule == nullptr)
        return "no rule is bound to it";
    const std::string name = rule->name.empty() ? "a rule for it" : "the rule “" + rule->name + "”";
    if (!rule->action.isConfigured())
        return name + " has no complete action";
    if (rule->gesture == GestureKind::edgeSlide && rule->action.kind != ActionKind::adjustVolume)
        return name + " has an action that a slide cannot run: it can only adjust the volume";
    return name + (rule->isEnabled ? " runs a shell command, and those are switched off" : " is off");
}

}  // namespace kinesta
