#include "ui/sidebar/Sidebar.h"

namespace kinesta {

Sidebar::Sidebar(RuleListModel& /*model*/, WindowCommands& /*commands*/, QWidget* parent) : QWidget(parent) {}

void Sidebar::focusList() {}

void Sidebar::focusFilter() {}

void Sidebar::showAddHelp() {}

}  // namespace kinesta
