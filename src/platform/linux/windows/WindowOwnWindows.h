#pragma once

#include "actions/OwnWindows.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// The windows of this process, as the desktop sees them. They are closed as by their close button, so that they can
/// still ask the person first.
class WindowOwnWindows : public OwnWindows {
  public:
    explicit WindowOwnWindows(EwmhDesktop& desktop) : m_desktop(desktop) {}

    std::unique_ptr<OwnWindow> keyWindow() override;
    std::unique_ptr<OwnWindow> mainWindow() override;

  private:
    EwmhDesktop& m_desktop;
};

}  // namespace kinesta
