#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/GestureAction.h"

namespace kinesta {

/// What the cue says: one line of text and the symbol before it.
struct ActionCueContent {
    std::string label;
    /// The action whose symbol is shown.
    ActionKind symbol = ActionKind::unconfigured;

    friend bool operator==(const ActionCueContent&, const ActionCueContent&) = default;

    /// For `action`; `message` replaces the label unless it is blank. `adjustmentSteps` is the signed number of volume
    /// steps.
    static ActionCueContent of(const GestureAction& action, std::int64_t adjustmentSteps,
                               const std::optional<std::string>& message);
};

}  // namespace kinesta
