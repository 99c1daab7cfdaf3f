#pragma once

#include <memory>

namespace kinesta {

/// A window of this application. Valid until control returns to the main loop.
class OwnWindow {
  public:
    virtual ~OwnWindow() = default;

    /// Whether it is a floating panel.
    virtual bool isPanel() = 0;
    virtual bool isMiniaturized() = 0;
    /// Whether a modal dialog is attached to it.
    virtual bool hasAttachedSheet() = 0;
    /// Whether it has an enabled standard close button.
    virtual bool isCloseButtonEnabled() = 0;
    /// Closes it as the close button would, including any confirmation.
    virtual void performClose() = 0;
};

/// The port to the windows of this application. Main thread only.
class OwnWindows {
  public:
    virtual ~OwnWindows() = default;

    /// The window with keyboard focus; null if there is none.
    virtual std::unique_ptr<OwnWindow> keyWindow() = 0;

    /// The main window, which may lack keyboard focus; null if there is none.
    virtual std::unique_ptr<OwnWindow> mainWindow() = 0;
};

}  // namespace kinesta
