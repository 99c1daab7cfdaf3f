#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "rules/GestureRule.h"
#include "support/Translation.h"

namespace kinesta {

/// What a clash of rules means.
inline constexpr std::string_view kClashReason =
    TRANSLATABLE("Another enabled rule uses this gesture. Only the first matching rule will run.");

/// The name of a rule on one line, without characters that cannot be seen: "Untitled gesture" if nothing is left.
std::string displayName(const GestureRule& rule);

/// With a first letter a–z as a capital.
std::string capitalized(std::string text);

/// The gesture of a rule in short: "3-finger double tap", "Tip-tap left", "2-finger slide, right", "Bottom left, L".
std::string shortGesture(const GestureRule& rule);

/// The action in one short line: an address by its host, a path by its last part, an application by its name, else the
/// summary.
std::string shortAction(const GestureAction& action);

/// What must still be chosen before the rule can be switched on, as a sentence; nothing if it is ready.
std::optional<std::string> whatIsMissing(const GestureRule& rule);

}  // namespace kinesta
