#pragma once

#include <optional>

#include "app/AppAppearance.h"

namespace kinesta {

/// The port that gives the application's windows their appearance. Main thread only.
class AppearanceControl {
  public:
    virtual ~AppearanceControl() = default;

    /// At once; nothing follows the system from now on.
    virtual void force(std::optional<NamedAppearance> appearance) = 0;
};

}  // namespace kinesta
