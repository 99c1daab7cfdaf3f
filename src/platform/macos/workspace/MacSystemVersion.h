#pragma once

#include "support/SystemVersion.h"

namespace kinesta {

class MacSystemVersion final : public SystemVersion {
  public:
    int majorVersion() const override;
};

}  // namespace kinesta
