#pragma once

#include <QMenu>

#include "ui/WindowCommands.h"
#include "ui/models/RuleListModel.h"

namespace kinesta {

/// The menu of a rule in the list: what can be done with it and with the rules marked together with it.
class RuleMenu final : public QMenu {
    Q_OBJECT

  public:
    /// Both must outlive this.
    RuleMenu(const Uuid& rule, RuleListModel& rules, WindowCommands& commands, QWidget* parent);
};

/// The menu beside the heading of the list.
class RulesMenu final : public QMenu {
    Q_OBJECT

  public:
    /// Both must outlive this.
    RulesMenu(RuleListModel& rules, WindowCommands& commands, QWidget* parent);
};

}  // namespace kinesta
