#include "ui/sidebar/RuleMenu.h"

namespace kinesta {

RuleMenu::RuleMenu(const Uuid& rule, RuleListModel& rules, WindowCommands& commands, QWidget* parent) : QMenu(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    addAction(tr("Run action now"), this, [&commands, rule] { commands.runAction(rule); });
    addSeparator();
    addAction(tr("Duplicate"), this, [&rules, rule] { rules.duplicateRule(rule); });
    addAction(tr("Move up"), this, [&rules] { rules.moveMarkedUp(); })->setEnabled(rules.canMoveMarkedUp());
    addAction(tr("Move down"), this, [&rules] { rules.moveMarkedDown(); })->setEnabled(rules.canMoveMarkedDown());
    addSeparator();
    addAction(tr("Delete…"), this, [&commands] { commands.deleteRules(); });
}

RulesMenu::RulesMenu(RuleListModel& rules, WindowCommands& commands, QWidget* parent) : QMenu(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    const RuleListCommands& possible = rules.commands().value();
    addAction(tr("Enable all rules"), this, [&rules] { rules.enableAll(); })->setEnabled(possible.canEnableAll);
    addAction(tr("Disable all rules"), this, [&rules] { rules.disableAll(); })->setEnabled(possible.canDisableAll);
    addSeparator();
    addAction(tr("Import rules…"), this, [&commands] { commands.importRules(); });
    addAction(tr("Export rules…"), this, [&commands] { commands.exportRules(); });
    addSeparator();
    addAction(tr("About Kinesta"), this, [&commands] { commands.showAbout(); });
}

}  // namespace kinesta
