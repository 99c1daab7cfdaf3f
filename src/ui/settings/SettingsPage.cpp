#include "ui/settings/SettingsPage.h"

namespace kinesta {

SettingsPage::SettingsPage(const WindowParts& /*parts*/, WindowCommands& /*commands*/) {}

void SettingsPage::setTransferProblem(const QString& /*problem*/) {}

}  // namespace kinesta
