#pragma once

#include "actions/HomeFolders.h"

namespace kinesta {

/// The home folders of the user database; for the empty name ownHomeFolder().
class PosixHomeFolders final : public HomeFolders {
  public:
    std::optional<std::string> homeFolder(const std::string& userName) const override;
};

}  // namespace kinesta
