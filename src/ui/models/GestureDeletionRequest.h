#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

#include "rules/GestureRule.h"

namespace kinesta {

/// The rules that wait for the confirmation of their deletion, in the order of the list.
struct GestureDeletionRequest {
    std::vector<Uuid> ids;
    std::vector<std::string> names;

    /// For those of `wanted` that are in the list.
    static GestureDeletionRequest of(std::span<const GestureRule> rules, const std::set<Uuid>& wanted);

    std::string title() const;
    static std::string message();

    friend bool operator==(const GestureDeletionRequest&, const GestureDeletionRequest&) = default;
};

}  // namespace kinesta
