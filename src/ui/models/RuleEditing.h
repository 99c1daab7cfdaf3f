#pragma once

#include <vector>

#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// Gives a rule another gesture, and clears or sets what depends on it: slides adjust the volume and nothing else does.
void changeGesture(GestureRule& rule, GestureKind gesture);

/// Gives a rule the gesture that was performed, with its fingers, side, corner and pattern.
void takeGesture(GestureRule& rule, const DetectedGesture& detected);

/// The kinds of action that a gesture allows, in the order of their list.
std::vector<ActionKind> actionKindsFor(GestureKind gesture);

}  // namespace kinesta
