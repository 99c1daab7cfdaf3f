#pragma once

#include "app/ActivationPolicy.h"

namespace kinesta {

/// How the running application is presented in the Dock and in the menu bar.
class MacActivationPolicy final : public ActivationPolicy {
  public:
    Kind kind() const override;
    void set(Kind kind) override;
    bool isActive() const override;
    void activateIgnoringOtherApplications() override;
};

}  // namespace kinesta
