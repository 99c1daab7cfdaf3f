#pragma once

#include "actions/OwnMenus.h"
#include "platform/linux/windows/WindowTiler.h"

namespace kinesta {

/// The menu bar of this process, as far as actions use it: the tiling commands, which work on our own window as on any
/// other.
class WindowOwnMenus : public OwnMenus {
  public:
    explicit WindowOwnMenus(WindowTiler& tiler) : m_tiler(tiler) {}

    std::unique_ptr<OwnMenu> mainMenu() override;

  private:
    WindowTiler& m_tiler;
};

}  // namespace kinesta
