#pragma once

#include "actions/OwnWindows.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// The windows of this process, as the desktop sees them: whatever shows them, the close button asks them in the same
/// way, with all that they ask the person first.
class WindowOwnWindows : public OwnWindows {
  public:
    explicit WindowOwnWindows(EwmhDesktop& desktop) : m_desktop(desktop) {}

    std::unique_ptr<OwnWindow> keyWindow() override;
    std::unique_ptr<OwnWindow> mainWindow() override;

  private:
    EwmhDesktop& m_desktop;
};

}  // namespace kinesta
