#pragma once

#include <QWidget>

#include "ui/WindowCommands.h"
#include "ui/models/RuleListModel.h"

namespace kinesta {

/// The pages and the list of the rules.
class Sidebar final : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive this.
    Sidebar(RuleListModel& model, WindowCommands& commands, QWidget* parent = nullptr);

    /// Puts the focus into the list.
    void focusList();
    /// Puts the focus into the filter, if it is offered.
    void focusFilter();
    /// Shows why no rule can be added now, at the button.
    void showAddHelp();

  Q_SIGNALS:
    /// The person opened a row: in one pane its page replaces the list.
    void opened();
    /// To the name of the selected rule.
    void nameWanted();
};

}  // namespace kinesta
