#pragma once

#include "support/SystemVersion.h"

namespace kinesta {

/// The generation whose features exist here: Kinesta tiles windows itself on Linux desktops, so it is the first that
/// has the tiling commands.
class LinuxSystemVersion final : public SystemVersion {
  public:
    int majorVersion() const override { return 15; }
};

}  // namespace kinesta
