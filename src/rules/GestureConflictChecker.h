#pragma once

#include <set>
#include <span>

#include "rules/GestureRule.h"

namespace kinesta {

/// Finds the enabled rules that compete for a gesture, of which only the first in the list runs.
struct GestureConflictChecker {
    static std::set<Uuid> conflictingRuleIDs(std::span<const GestureRule> rules);
    /// Whether these two do.
    static bool areRivals(const GestureRule& a, const GestureRule& b);
};

}  // namespace kinesta
