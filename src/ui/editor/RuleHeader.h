#pragma once

#include <QBoxLayout>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include "app/RuleHistory.h"
#include "ui/WindowCommands.h"
#include "ui/action/TextField.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/models/RuleListModel.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Switch.h"

namespace kinesta {

/// The name of a rule, its switch and the menu of what can be done with the whole rule.
class RuleHeader final : public QWidget {
    Q_OBJECT

  public:
    /// All must outlive this.
    RuleHeader(const Uuid& rule, RuleEditorModel& model, RuleListModel& list, RuleHistory& history,
               WindowCommands& commands);

    /// Puts the cursor into the name and selects all of it.
    void focusName();
    /// Takes it in before the name.
    void setBackButton(QWidget* button);

  protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeMenu();
    void follow();
    void turn(bool isOn);
    void snapBack();
    void measure();

    Uuid m_rule;
    RuleEditorModel& m_model;
    RuleListModel& m_list;
    RuleHistory& m_history;
    WindowCommands& m_commands;
    QBoxLayout* m_line;
    TextField* m_name;
    Words* m_state;
    Switch* m_switch;
    QToolButton* m_more;
    QMenu* m_menu;
    Card* m_reasonCard;
    Notice* m_reason;
    QTimer m_snapping;
    QTimer m_reading;
    Subscription m_observer;
};

}  // namespace kinesta
