#pragma once

#include <functional>
#include <string>

#include "app/StatusMenu.h"

namespace kinesta {

/// A released mouse button over the status item.
struct StatusItemClick {
    enum class Button { left, right };

    Button button = Button::left;
    bool isControlHeld = false;
};

/// The port to the icon in the menu bar or tray. Main thread only.
class StatusItem {
  public:
    struct Handlers {
        std::function<void(StatusItemClick)> clicked;
        std::function<void(StatusMenuCommand)> chosen;
    };

    virtual ~StatusItem() = default;

    /// Puts the icon into the bar, and again whenever a bar appears later.
    virtual void create(Handlers handlers) = 0;
    /// Shows the picture of TrayIcon for this state. `accessibilityLabel` describes it for people who cannot see it.
    virtual void setState(bool isEnabled, const std::string& accessibilityLabel) = 0;
    virtual void setToolTip(const std::string& toolTip) = 0;
    /// The menu as it would open now. A host that shows it by itself always shows the last one.
    virtual void setMenu(const StatusMenu& menu) = 0;
    /// Opens the menu at the icon.
    virtual void openMenu() = 0;
};

}  // namespace kinesta
