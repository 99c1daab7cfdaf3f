#pragma once

#include "actions/HomeFolders.h"

namespace kinesta {

/// The home folders of the user database; our own by HOME, if that is an absolute path, as shells have it.
class PosixHomeFolders final : public HomeFolders {
  public:
    std::optional<std::string> homeFolder(const std::string& userName) const override;
};

}  // namespace kinesta
