#pragma once

#include <optional>
#include <string>

#include "app/LoginItemService.h"
#include "support/Published.h"

namespace kinesta {

/// Whether the application starts at login. The system's register is the only truth and is read again after every
/// change. Main thread only; the service must outlive this.
class LaunchAtLoginManager {
  public:
    explicit LaunchAtLoginManager(LoginItemService& service);

    const Published<bool>& isEnabled() const { return m_isEnabled; }
    /// Whether it is registered but waits for the person's approval.
    const Published<bool>& requiresApproval() const { return m_requiresApproval; }
    /// Why the last change failed, or that the registered program is gone.
    const Published<std::optional<std::string>>& errorMessage() const { return m_errorMessage; }

    /// Reads the register.
    void refresh();
    /// Registers or unregisters, then reads the register.
    void setEnabled(bool enabled);
    /// Opens the place where the person approves login items.
    void openLoginItemSettings();

  private:
    LoginItemService& m_service;
    Published<bool> m_isEnabled{false};
    Published<bool> m_requiresApproval{false};
    Published<std::optional<std::string>> m_errorMessage;
    std::optional<std::string> m_lastFailure;
};

}  // namespace kinesta
