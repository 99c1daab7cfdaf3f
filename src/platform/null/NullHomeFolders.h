#pragma once

#include "actions/HomeFolders.h"

namespace kinesta {

/// Knows no user.
class NullHomeFolders final : public HomeFolders {
  public:
    std::optional<std::string> homeFolder(const std::string&) const override { return std::nullopt; }
};

}  // namespace kinesta
