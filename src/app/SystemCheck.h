#pragma once

#include <string>
#include <vector>

#include "app/Desktop.h"
#include "rules/GestureRule.h"

namespace kinesta {

/// Whether one thing that rules may need works here, and if not, what to do.
struct SystemFinding {
    std::string what;
    bool works = false;
    std::string why;
    std::string remedy;
    /// Whether an enabled rule needs it.
    bool isNeeded = false;

    bool isMissing() const { return isNeeded && !works; }
};

/// What works on this machine for these rules: trackpad, session, shell commands, and the obstacles to single rules.
/// May take seconds if services do not answer.
std::vector<SystemFinding> checkSystem(Desktop& desktop, const std::vector<GestureRule>& rules);

}  // namespace kinesta
