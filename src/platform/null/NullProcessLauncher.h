#pragma once

#include "actions/ProcessLauncher.h"

namespace kinesta {

/// Starts nothing.
class NullProcessLauncher final : public ProcessLauncher {
  public:
    void launch(std::string, std::vector<std::string>) override {}
};

}  // namespace kinesta
