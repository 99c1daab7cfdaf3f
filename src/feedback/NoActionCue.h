#pragma once

#include "feedback/ActionCuePresenting.h"

namespace kinesta {

/// Shows nothing: for programs without an overlay.
class NoActionCue final : public ActionCuePresenting {
  public:
    void show(const GestureAction& /*action*/, std::int64_t /*adjustmentSteps*/,
              const std::optional<std::string>& /*message*/) override {}
};

}  // namespace kinesta
