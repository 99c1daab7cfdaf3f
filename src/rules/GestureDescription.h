#pragma once

#include <span>
#include <string>

#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// A recognized gesture in words: "3-finger single tap", "single tip-tap left", "2-finger left edge slide up",
/// "top left line up".
std::string describe(const DetectedGesture& detected);

/// What a rule waits for, in words: "3-finger single tap", "2-finger vertical edge slide, both edges"; what is not
/// chosen yet shows as "…".
std::string describeTrigger(const GestureRule& rule);

/// Why no rule ran for a gesture, in words: the nearest rule that would take it if it were on, complete or permitted;
/// or that there is none.
std::string whyNoRule(std::span<const GestureRule> rules, const DetectedGesture& detected);

}  // namespace kinesta
