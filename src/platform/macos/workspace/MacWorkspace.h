#pragma once

#include "actions/Workspace.h"

namespace kinesta {

/// Opens through the system's workspace.
class MacWorkspace final : public Workspace {
  public:
    void openURL(const std::string& url) override;
    void openFile(const std::string& path) override;
    void launchApplication(const std::string& path, const std::vector<std::string>& arguments) override;
    std::optional<ProcessIdentifier> frontmostApplication() override;
    ProcessIdentifier ownProcessIdentifier() override;
};

}  // namespace kinesta
