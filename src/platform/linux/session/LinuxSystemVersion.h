#pragma once

#include "support/SystemVersion.h"

namespace kinesta {

/// The system version whose features exist here. Kinesta tiles windows itself on Linux desktops, so this is the first
/// version with the tiling commands.
class LinuxSystemVersion final : public SystemVersion {
  public:
    int majorVersion() const override { return 15; }
};

}  // namespace kinesta
