#include "platform/linux/windows/WindowOwnMenus.h"

#include <unistd.h>

#include <string>

#include "support/EnumTable.h"

namespace kinesta {
namespace {

class TilingMenuItem : public OwnMenuItem {
  public:
    TilingMenuItem(WindowTiler& tiler, WindowTilingMenuCommand command) : m_tiler(tiler), m_command(command) {}

    std::optional<std::string> identifier() override { return std::string(rawValue(m_command)); }
    std::optional<std::string> actionName() override { return identifier(); }
    bool isEnabled() override { return m_tiler.canPerform(m_command, getpid(), EwmhDesktop::kTimeout); }
    std::unique_ptr<OwnMenu> submenu() override { return nullptr; }
    bool sendAction() override { return m_tiler.perform(m_command, getpid(), EwmhDesktop::kTimeout); }

  private:
    WindowTiler& m_tiler;
    WindowTilingMenuCommand m_command;
};

class TilingMenu : public OwnMenu {
  public:
    explicit TilingMenu(WindowTiler& tiler) : m_tiler(tiler) {}

    void update() override {}  // Items read their state on demand.

    std::vector<std::unique_ptr<OwnMenuItem>> items() override {
        std::vector<std::unique_ptr<OwnMenuItem>> items;
        for (const auto& row : enumTable<WindowTilingMenuCommand>())
            items.push_back(std::make_unique<TilingMenuItem>(m_tiler, row.value));
        return items;
    }

  private:
    WindowTiler& m_tiler;
};

}  // namespace

std::unique_ptr<OwnMenu> WindowOwnMenus::mainMenu() { return std::make_unique<TilingMenu>(m_tiler); }

}  // namespace kinesta
