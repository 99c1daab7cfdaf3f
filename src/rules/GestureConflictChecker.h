#pragma once

#include <set>
#include <span>

#include "rules/GestureRule.h"

namespace kinesta {

/// Finds the enabled rules that compete for the same gesture; only the first of them in list order can run.
struct GestureConflictChecker {
    static std::set<Uuid> conflictingRuleIDs(std::span<const GestureRule> rules);
};

}  // namespace kinesta
