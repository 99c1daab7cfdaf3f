#pragma once

#include <functional>

#include "actions/Workspace.h"
#include "platform/linux/launching/DesktopPortal.h"
#include "platform/linux/launching/PosixProcessLauncher.h"

namespace kinesta {

/// Opens things as the desktop would: addresses and files with xdg-open, or the desktop's portal where there is no
/// xdg-open; applications by their program or their desktop file. Main thread only.
class XdgWorkspace final : public Workspace {
  public:
    /// Tells which application has the person's attention.
    using FrontmostApplication = std::function<std::optional<ProcessIdentifier>()>;
    /// Is told, as one sentence, what could not be opened and why.
    using Log = std::function<void(const std::string&)>;

    /// The launcher and the portal must outlive this.
    XdgWorkspace(PosixProcessLauncher& launcher, DesktopPortal& portal, FrontmostApplication frontmostApplication,
                 Log log);

    void openURL(const std::string& url) override;
    void openFile(const std::string& path) override;

    /// A path that ends in ".desktop" is started as that file says, with `arguments` after its own: they are options,
    /// not the documents for which the file keeps a place.
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
