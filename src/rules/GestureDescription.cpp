#include "rules/GestureDescription.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "support/Translation.h"

namespace kinesta {
namespace {

/// In the order of the enumeration. %1: how many fingers.
constexpr std::array<std::string_view, 21> kGestures{
    "…",
    TRANSLATABLE("%1-finger single tap"),
    TRANSLATABLE("%1-finger double tap"),
    TRANSLATABLE("%1-finger triple tap"),
    TRANSLATABLE("%1-finger single physical click (any pressure)"),
    TRANSLATABLE("%1-finger single soft click (stage 1)"),
    TRANSLATABLE("%1-finger single force click (stage 2)"),
    TRANSLATABLE("%1-finger double physical click (any pressure)"),
    TRANSLATABLE("%1-finger double soft click (stage 1)"),
    TRANSLATABLE("%1-finger double force click (stage 2)"),
    TRANSLATABLE("%1-finger triple physical click (any pressure)"),
    TRANSLATABLE("%1-finger triple soft click (stage 1)"),
    TRANSLATABLE("%1-finger triple force click (stage 2)"),
    TRANSLATABLE("single tip-tap left"),
    TRANSLATABLE("double tip-tap left"),
    TRANSLATABLE("triple tip-tap left"),
    TRANSLATABLE("single tip-tap right"),
    TRANSLATABLE("double tip-tap right"),
    TRANSLATABLE("triple tip-tap right"),
    TRANSLATABLE("%1-finger vertical edge slide"),
    TRANSLATABLE("corner hold and draw"),
};
/// By side: left, right, both.
constexpr std::array<std::string_view, 3> kSlidesUp{TRANSLATABLE("%1-finger left edge slide up"),
                                                    TRANSLATABLE("%1-finger right edge slide up"),
                                                    TRANSLATABLE("%1-finger both edge slide up")};
constexpr std::array<std::string_view, 3> kSlidesDown{TRANSLATABLE("%1-finger left edge slide down"),
                                                      TRANSLATABLE("%1-finger right edge slide down"),
                                                      TRANSLATABLE("%1-finger both edge slide down")};
constexpr std::array<std::string_view, 3> kEdges{TRANSLATABLE("%1, left edge"), TRANSLATABLE("%1, right edge"),
                                                 TRANSLATABLE("%1, both edges")};
/// Inside a description.
constexpr std::array<std::string_view, 4> kCorners{TRANSLATABLE("top left"), TRANSLATABLE("top right"),
                                                   TRANSLATABLE("bottom left"), TRANSLATABLE("bottom right")};
constexpr std::array<std::string_view, 9> kPatterns{TRANSLATABLE("line up"),
                                                    TRANSLATABLE("line down"),
                                                    TRANSLATABLE("line left"),
                                                    TRANSLATABLE("line right"),
                                                    TRANSLATABLE("l — down, then right"),
                                                    TRANSLATABLE("v — left to right"),
                                                    TRANSLATABLE("zigzag — left to right"),
                                                    TRANSLATABLE("clockwise circle"),
                                                    TRANSLATABLE("counterclockwise circle")};

template <typename E, std::size_t N>
std::string_view wordsOf(E value, const std::array<std::string_view, N>& words) {
    return words.at(static_cast<std::size_t>(value));
}

template <typename E, std::size_t N>
std::string wordsOrDots(const std::optional<E>& value, const std::array<std::string_view, N>& words) {
    return value ? translated(wordsOf(*value, words)) : "…";
}

struct Describe {
    std::string operator()(const DetectedTap& tap) const {
        return translated(wordsOf(tap.gesture, kGestures), {std::to_string(tap.fingerCount)});
    }
    std::string operator()(const DetectedEdgeSlide& slide) const {
        return translated(wordsOf(slide.side, slide.steps >= 1 ? kSlidesUp : kSlidesDown),
                          {std::to_string(slide.fingerCount)});
    }
    std::string operator()(const DetectedAnchorDraw& draw) const {
        return translated("%1 %2",
                          {translated(wordsOf(draw.corner, kCorners)), translated(wordsOf(draw.pattern, kPatterns))});
    }
};

}  // namespace

std::string describe(const DetectedGesture& detected) { return std::visit(Describe{}, detected); }

std::string describeTrigger(const GestureRule& rule) {
    std::string text = translated(wordsOf(rule.gesture, kGestures),
                                  {rule.fingerCount ? std::to_string(*rule.fingerCount) : std::string("…")});
    if (rule.gesture == GestureKind::edgeSlide)
        return translated(wordsOf(rule.resolvedEdgeSlideSide(), kEdges), {text});
    if (rule.gesture == GestureKind::anchorDraw)
        return translated("%1, %2, %3",
                          {text, wordsOrDots(rule.anchorCorner, kCorners), wordsOrDots(rule.drawPattern, kPatterns)});
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
        return translated("no rule is bound to it");
    const auto say = [&](std::string_view ofNamed, std::string_view ofUnnamed) {
        return rule->name.empty() ? translated(ofUnnamed) : translated(ofNamed, {rule->name});
    };
    if (!rule->action.isConfigured())
        return say(TRANSLATABLE("the rule “%1” has no complete action"),
                   TRANSLATABLE("a rule for it has no complete action"));
    if (rule->gesture == GestureKind::edgeSlide && rule->action.kind != ActionKind::adjustVolume)
        return say(TRANSLATABLE("the rule “%1” has an action that a slide cannot run: it can only adjust the volume"),
                   TRANSLATABLE("a rule for it has an action that a slide cannot run: it can only adjust the volume"));
    if (rule->isEnabled)
        return say(TRANSLATABLE("the rule “%1” runs a shell command, and those are switched off"),
                   TRANSLATABLE("a rule for it runs a shell command, and those are switched off"));
    return say(TRANSLATABLE("the rule “%1” is off"), TRANSLATABLE("a rule for it is off"));
}

}  // namespace kinesta
