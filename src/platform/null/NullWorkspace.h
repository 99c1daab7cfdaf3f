#pragma once

#include "actions/Workspace.h"

namespace kinesta {

/// Opens nothing; no application is in front.
class NullWorkspace final : public Workspace {
  public:
    void openURL(const std::string&) override {}
    void openFile(const std::string&) override {}
    void launchApplication(const std::string&, const std::vector<std::string>&) override {}
    std::optional<ProcessIdentifier> frontmostApplication() override { return std::nullopt; }
    ProcessIdentifier ownProcessIdentifier() override { return 0; }
};

}  // namespace kinesta
