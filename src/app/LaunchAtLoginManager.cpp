#include "app/LaunchAtLoginManager.h"

#include "support/Translation.h"

namespace kinesta {

LaunchAtLoginManager::LaunchAtLoginManager(LoginItemService& service) : m_service(service) { refresh(); }

void LaunchAtLoginManager::refresh() {
    const LoginItemStatus status = m_service.status();
    m_isEnabled.set(status == LoginItemStatus::enabled);
    m_requiresApproval.set(status == LoginItemStatus::requiresApproval);
    if (!m_lastFailure && status == LoginItemStatus::notFound)
        m_errorMessage.set(translated("The login item starts a program that is no longer there. Switch it on again."));
    else
        m_errorMessage.set(m_lastFailure);
}

void LaunchAtLoginManager::setEnabled(bool enabled) {
    const Outcome outcome = enabled ? m_service.registerItem() : m_service.unregisterItem();
    m_lastFailure = outcome ? std::nullopt : std::optional(outcome.error().message);
    refresh();
}

void LaunchAtLoginManager::openLoginItemSettings() {
    const Outcome outcome = m_service.openSettings();
    m_lastFailure = outcome ? std::nullopt : std::optional(outcome.error().message);
    refresh();
}

}  // namespace kinesta
