#pragma once

#include "app/InstalledApplications.h"

namespace kinesta {

/// The programs that have a desktop file in the data folders of the session.
class DesktopApplications final : public InstalledApplications {
  public:
    std::vector<InstalledApplication> all() const override;
    std::optional<InstalledApplication> at(const std::string& path) const override;
};

}  // namespace kinesta
