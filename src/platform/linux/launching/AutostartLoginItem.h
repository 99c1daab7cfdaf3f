#pragma once

#include <optional>
#include <string>

#include "actions/ProcessLauncher.h"
#include "actions/Workspace.h"
#include "app/LoginItemService.h"

namespace kinesta {

/// What starts Kinesta at login: a desktop file in the person's autostart folder. Main thread only.
class AutostartLoginItem final : public LoginItemService {
  public:
    /// `program` is what to start, as an absolute path. Launcher and workspace must outlive this.
    AutostartLoginItem(std::string program, ProcessLauncher& launcher, Workspace& workspace)
        : m_program(std::move(program)), m_launcher(launcher), m_workspace(workspace) {}

    LoginItemStatus status() const override;
    /// Leaves a file alone that the person or the desktop has switched off.
    Outcome registerItem() override;
    Outcome unregisterItem() override;
    Outcome openSettings() override;

  private:
    std::string m_program;
    ProcessLauncher& m_launcher;
    Workspace& m_workspace;
};

}  // namespace kinesta
