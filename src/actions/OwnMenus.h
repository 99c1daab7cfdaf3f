#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kinesta {

class OwnMenu;

/// A menu item of this application. May outlive its OwnMenu; valid until the application changes the menu.
class OwnMenuItem {
  public:
    virtual ~OwnMenuItem() = default;

    virtual std::optional<std::string> identifier() = 0;
    /// The name of the item's action; empty if it has none.
    virtual std::optional<std::string> actionName() = 0;
    virtual bool isEnabled() = 0;
    /// Null if the item opens no menu.
    virtual std::unique_ptr<OwnMenu> submenu() = 0;
    /// Sends the item's action. Whether it was handled. Requires an actionName().
    virtual bool sendAction() = 0;
};

/// A menu of this application.
class OwnMenu {
  public:
    virtual ~OwnMenu() = default;

    /// Updates the items and their states.
    virtual void update() = 0;

    virtual std::vector<std::unique_ptr<OwnMenuItem>> items() = 0;
};

/// The port to this application's menu bar. Main thread only.
class OwnMenus {
  public:
    virtual ~OwnMenus() = default;

    /// Null if the application has no menu bar.
    virtual std::unique_ptr<OwnMenu> mainMenu() = 0;
};

}  // namespace kinesta
