#include "platform/macos/application/MacOwnMenus.h"

#include <AppKit/AppKit.h>

#include "platform/macos/foundation/NsText.h"

namespace kinesta {
namespace {

std::unique_ptr<OwnMenu> ownMenu(NSMenu* menu);

class MacOwnMenuItem final : public OwnMenuItem {
  public:
    explicit MacOwnMenuItem(NSMenuItem* item) : m_item(item) {}

    std::optional<std::string> identifier() override {
        NSString* const identifier = m_item.identifier;
        return identifier ? std::optional(textOf(identifier)) : std::nullopt;
    }
    std::optional<std::string> actionName() override {
        const SEL action = m_item.action;
        return action ? std::optional(textOf(NSStringFromSelector(action))) : std::nullopt;
    }
    bool isEnabled() override { return m_item.isEnabled; }
    std::unique_ptr<OwnMenu> submenu() override { return ownMenu(m_item.submenu); }
    bool sendAction() override {
        const SEL action = m_item.action;
        return action && [NSApp sendAction:action to:m_item.target from:m_item];
    }

  private:
    NSMenuItem* m_item;
};

class MacOwnMenu final : public OwnMenu {
  public:
    explicit MacOwnMenu(NSMenu* menu) : m_menu(menu) {}

    void update() override { [m_menu update]; }

    std::vector<std::unique_ptr<OwnMenuItem>> items() override {
        std::vector<std::unique_ptr<OwnMenuItem>> items;
        for (NSMenuItem* item in m_menu.itemArray)
            items.push_back(std::make_unique<MacOwnMenuItem>(item));
        return items;
    }

  private:
    NSMenu* m_menu;
};

std::unique_ptr<OwnMenu> ownMenu(NSMenu* menu) { return menu ? std::make_unique<MacOwnMenu>(menu) : nullptr; }

}  // namespace

std::unique_ptr<OwnMenu> MacOwnMenus::mainMenu() { return ownMenu(NSApp.mainMenu); }

}  // namespace kinesta
