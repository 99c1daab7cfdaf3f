#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/GestureAction.h"

namespace kinesta {

/// The port that shows the action cue. Main thread only.
class ActionCuePresenting {
  public:
    virtual ~ActionCuePresenting() = default;

    /// Shows the cue of `action` before it is attempted. `adjustmentSteps` is the signed number of volume steps, 0
    /// unless the gesture is a slide. A non-empty `message` replaces the action's own text.
    virtual void show(const GestureAction& action, std::int64_t adjustmentSteps,
                      const std::optional<std::string>& message) = 0;
};

}  // namespace kinesta
