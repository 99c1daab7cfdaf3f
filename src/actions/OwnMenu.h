#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kinesta {

class OwnMenu;

/// An item of a menu of this application. Outlives the OwnMenu that gave it; valid until the application changes the
/// menu.
class OwnMenuItem {
  public:
    virtual ~OwnMenuItem() = default;

    virtual std::optional<std::string> identifier() = 0;
    /// The name of what choosing the item does; nothing if it does nothing.
    virtual std::optional<std::string> actionName() = 0;
    virtual bool isEnabled() = 0;
    /// The menu that the item opens; null if it opens none.
    virtual std::unique_ptr<OwnMenu> submenu() = 0;
    /// Does what choosing the item does; whether anyone took it. Only with an actionName().
    virtual bool sendAction() = 0;
};

/// A menu of this application.
class OwnMenu {
  public:
    virtual ~OwnMenu() = default;

    /// Brings the items and their states up to date.
    virtual void update() = 0;

    virtual std::vector<std::unique_ptr<OwnMenuItem>> items() = 0;
};

}  // namespace kinesta
