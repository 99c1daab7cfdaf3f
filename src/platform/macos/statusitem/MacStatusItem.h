#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/StatusItem.h"

namespace kinesta {

/// The icon in the menu bar. Nothing but create() has an effect before it. Main thread only.
class MacStatusItem final : public StatusItem {
  public:
    MacStatusItem();
    ~MacStatusItem() override;

    void create(Handlers handlers) override;
    void setState(bool isEnabled, const std::string& accessibilityLabel) override;
    void setToolTip(const std::string& toolTip) override;
    void setMenu(const StatusMenu& menu) override { m_menu = menu; }
    /// Returns when the menu has closed again.
    void openMenu() override;

  private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
    StatusMenu m_menu;
    std::optional<bool> m_isEnabled;
};

}  // namespace kinesta
