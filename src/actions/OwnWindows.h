#pragma once

#include <memory>

namespace kinesta {

/// A window of this application. Valid until control returns to the main loop.
class OwnWindow {
  public:
    virtual ~OwnWindow() = default;

    /// Whether it is an auxiliary floating panel.
    virtual bool isPanel() = 0;
    virtual bool isMiniaturized() = 0;
    /// Whether a dialog is attached to it that must be answered first.
    virtual bool hasAttachedSheet() = 0;
    /// Whether it has a standard close button and that may be pressed.
    virtual bool isCloseButtonEnabled() = 0;
    /// Closes it as the close button would, with all that asks the person first.
    virtual void performClose() = 0;
};

/// The port to the windows of this application. Main thread only.
class OwnWindows {
  public:
    virtual ~OwnWindows() = default;

    /// The window that takes the keys; null if none does.
    virtual std::unique_ptr<OwnWindow> keyWindow() = 0;

    /// The window that the person works in, which need not take the keys; null if there is none.
    virtual std::unique_ptr<OwnWindow> mainWindow() = 0;
};

}  // namespace kinesta
