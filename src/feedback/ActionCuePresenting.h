#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/GestureAction.h"

namespace kinesta {

/// The port through which an action announces itself on the screen. Main thread only.
class ActionCuePresenting {
  public:
    virtual ~ActionCuePresenting() = default;

    /// Shows the cue of `action`, which is about to be attempted. `adjustmentSteps` is the signed number of volume
    /// steps, 0 for all but a slide. A `message` that is not empty is shown in place of the action's own words.
    virtual void show(const GestureAction& action, std::int64_t adjustmentSteps,
                      const std::optional<std::string>& message) = 0;
};

}  // namespace kinesta
