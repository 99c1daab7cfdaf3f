#pragma once

#include <span>
#include <string>

#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// A recognized gesture in words: "3-finger single tap", "single tip-tap left", "2-finger left edge slide up",
/// "top left line up".
std::string describe(const DetectedGesture& detected);

/// The gesture of a rule in words: "3-finger single tap", "2-finger vertical edge slide, both edges". A field that is
/// not set shows as "…".
std::string describeTrigger(const GestureRule& rule);

/// What a rule does in words: its action, and its name if that adds something.
std::string describeConsequence(const GestureRule& rule);

/// The first rule that would run for a gesture if it were enabled, complete and permitted, or null. Points into
/// `rules`.
const GestureRule* ruleForGesture(std::span<const GestureRule> rules, const DetectedGesture& detected);

/// Why no rule ran for a gesture: names the first rule that would match if it were enabled, complete or permitted, or
/// says that there is none.
std::string whyNoRule(std::span<const GestureRule> rules, const DetectedGesture& detected);

}  // namespace kinesta
