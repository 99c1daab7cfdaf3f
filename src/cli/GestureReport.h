#pragma once

#include <chrono>
#include <string>

#include "cli/terminal/Console.h"
#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// One finished gesture as a line of JSON: time, gesture, and the matching rule or null.
std::string gestureAsJson(std::chrono::nanoseconds time, const DetectedGesture& gesture, const GestureRule* rule);

/// The same for a person: "  1.250 s  3-finger double tap  →  Middle click (Paste)".
std::string gestureForPeople(const Console& console, std::chrono::nanoseconds time, const DetectedGesture& gesture,
                             const GestureRule* rule);

/// What a rule does in words, safe to print on a terminal.
std::string ruleInWords(const GestureRule& rule);

}  // namespace kinesta
