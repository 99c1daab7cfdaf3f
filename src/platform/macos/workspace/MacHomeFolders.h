#pragma once

#include "actions/HomeFolders.h"

namespace kinesta {

/// The home folders as the system expands "~" and "~name".
class MacHomeFolders final : public HomeFolders {
  public:
    std::optional<std::string> homeFolder(const std::string& userName) const override;
};

}  // namespace kinesta
