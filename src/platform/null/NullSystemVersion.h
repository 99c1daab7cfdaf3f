#pragma once

#include "actions/SystemVersion.h"

namespace kinesta {

/// Of no generation, so without the window tiling commands.
class NullSystemVersion final : public SystemVersion {
  public:
    int majorVersion() const override { return 0; }
};

}  // namespace kinesta
