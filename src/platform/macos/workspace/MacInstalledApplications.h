#pragma once

#include <filesystem>
#include <vector>

#include "app/InstalledApplications.h"

namespace kinesta {

/// The application bundles in the folders of applications and in the folders right inside these.
class MacInstalledApplications final : public InstalledApplications {
  public:
    /// The folders of the system and of the person.
    MacInstalledApplications();
    explicit MacInstalledApplications(std::vector<std::filesystem::path> folders);

    std::vector<InstalledApplication> all() const override;
    std::optional<InstalledApplication> at(const std::string& path) const override;

  private:
    std::vector<std::filesystem::path> m_folders;
};

}  // namespace kinesta
