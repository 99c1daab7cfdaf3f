#pragma once

#include <functional>

#include "actions/Workspace.h"
#include "platform/linux/launching/DesktopPortal.h"
#include "platform/linux/launching/PosixProcessLauncher.h"

namespace kinesta {

/// Opens addresses and files with xdg-open, or with the desktop's portal where there is no xdg-open; starts
/// applications by their program or desktop file. Main thread only.
class XdgWorkspace final : public Workspace {
  public:
    /// Returns the process of the frontmost application, if that is known.
    using FrontmostApplication = std::function<std::optional<ProcessIdentifier>()>;
    /// Gets one sentence when something cannot be opened.
    using Log = std::function<void(const std::string&)>;

    /// The launcher and the portal must outlive this.
    XdgWorkspace(PosixProcessLauncher& launcher, DesktopPortal& portal, FrontmostApplication frontmostApplication,
                 Log log);

    void openURL(const std::string& url) override;
    void openFile(const std::string& path) override;

    /// Starts a path that ends in ".desktop" as that file says. `arguments` follow the file's own as options; they do
    /// not replace its placeholders for documents.
    void launchApplication(const std::string& path, const std::vector<std::string>& arguments) override;

    std::optional<ProcessIdentifier> frontmostApplication() override;
    ProcessIdentifier ownProcessIdentifier() override;

  private:
    PosixProcessLauncher& m_launcher;
    DesktopPortal& m_portal;
    FrontmostApplication m_frontmostApplication;
    Log m_log;
};

}  // namespace kinesta
