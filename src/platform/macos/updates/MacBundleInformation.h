#pragma once

#include "app/BundleInformation.h"

namespace kinesta {

/// The information dictionary of the application's bundle.
class MacBundleInformation final : public BundleInformation {
  public:
    bool contains(std::string_view key) const override;
    std::optional<std::string> string(std::string_view key) const override;
};

}  // namespace kinesta
