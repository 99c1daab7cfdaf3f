#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/GestureRule.h"

namespace kinesta {

/// What is wrong with a rule in the sidebar. A rule that is unfinished and clashes counts as unfinished.
enum class RuleMark { none, unfinished, clash };

/// One row of the sidebar.
struct RuleRow {
    Uuid id;
    /// "Untitled gesture" if the rule has no name.
    std::string name;
    /// Gesture and action in short. The words say everything that the picture shows.
    std::string gesture;
    std::string action;
    bool isEnabled = false;
    RuleMark mark = RuleMark::none;
    /// The reason of the mark, as sentences; empty without one.
    std::string reason;

    friend bool operator==(const RuleRow&, const RuleRow&) = default;
};

/// The rows of the rules that have every word of `filter` in name, gesture or action, regardless of the case of A–Z.
std::vector<RuleRow> ruleRows(std::span<const GestureRule> rules, const std::set<Uuid>& conflicts,
                              std::string_view filter);

}  // namespace kinesta
