#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Desktop.h"
#include "rules/GestureRule.h"

namespace kinesta {

/// What a finding is about. `rule` is an obstacle to a single rule.
enum class FindingSubject {
    touchpad,
    gestureRecognition,
    forceClick,
    sendInput,
    keyboardLayout,
    windows,
    open,
    notify,
    cue,
    shellCommands,
    rule
};

/// The name of a subject for programs: "touchpad".
std::string_view rawValue(FindingSubject subject);
std::optional<FindingSubject> findingSubject(std::string_view raw);

/// Whether one thing that rules may need works here, and if not, what to do.
struct SystemFinding {
    FindingSubject subject = FindingSubject::rule;
    std::string what;
    bool works = false;
    std::string why;
    /// What to do, as a sentence; empty if nothing can be done or needs to be.
    std::string remedy = {};
    /// The command line that the remedy ends with, to be run in a terminal; empty if there is none.
    std::string command = {};
    /// Whether the remedy is to change a setting: a window shows its Settings instead.
    bool isSetting = false;
    /// How many enabled rules need it.
    std::size_t rulesInNeed = 0;
    /// The single rule that it is about.
    std::optional<Uuid> rule = std::nullopt;
    /// A name in `why` that its owner may have chosen, as for a wireless trackpad; empty if there is none.
    std::string chosenName = {};

    bool isNeeded() const { return rulesInNeed > 0; }
    bool isMissing() const { return isNeeded() && !works; }

    friend bool operator==(const SystemFinding&, const SystemFinding&) = default;
};

/// What works on this machine for these rules: trackpad, session, shell commands, and the obstacles to single rules.
/// May take seconds if services do not answer.
std::vector<SystemFinding> checkSystem(Desktop& desktop, const std::vector<GestureRule>& rules);

}  // namespace kinesta
