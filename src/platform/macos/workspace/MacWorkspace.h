#pragma once

#include "actions/Workspace.h"
#include "platform/macos/workspace/HandOvers.h"

namespace kinesta {

/// Opens through the system's workspace.
class MacWorkspace final : public Workspace {
  public:
    /// Starts of applications are under way in `handOvers`, which must outlive this.
    explicit MacWorkspace(HandOvers& handOvers) : m_handOvers(handOvers) {}

    void openURL(const std::string& url) override;
    void openFile(const std::string& path) override;
    void launchApplication(const std::string& path, const std::vector<std::string>& arguments) override;
    std::optional<ProcessIdentifier> frontmostApplication() override;
    ProcessIdentifier ownProcessIdentifier() override;

  private:
    HandOvers& m_handOvers;
};

}  // namespace kinesta
