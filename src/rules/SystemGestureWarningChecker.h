#pragma once

#include <optional>
#include <string>

#include "rules/GestureRule.h"

namespace kinesta {

/// A notice that the system may also act on a rule's gesture.
struct SystemGestureWarning {
    std::string title;
    std::string detail;

    friend bool operator==(const SystemGestureWarning&, const SystemGestureWarning&) = default;
};

/// Warns if a rule's gesture is likely to collide with one of the system.
struct SystemGestureWarningChecker {
    static std::optional<SystemGestureWarning> warning(const GestureRule& rule);
};

}  // namespace kinesta
