#pragma once

#include <QLineEdit>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <QWidget>
#include <vector>

#include "ui/WindowCommands.h"
#include "ui/models/RuleListModel.h"

namespace kinesta {

class CautionLine;
class EmptyList;
class ListHeading;
class PageRow;
class RuleListView;

/// The pages and the list of the rules. Asks about deletions, too.
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

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void layOut();
    void connectParts(WindowCommands& commands);
    void measure();
    void followRows();
    void followSelection();
    void followCommands();
    void showRefusal(const Uuid& rule);
    void placeRefusal();

    RuleListModel& m_model;
    PageRow* m_overview;
    ListHeading* m_heading;
    QLineEdit* m_filter;
    QWidget* m_middle;
    QStackedLayout* m_lists;
    RuleListView* m_list;
    EmptyList* m_empty;
    CautionLine* m_refusal;
    Uuid m_refused;
    PageRow* m_settings;
    QVBoxLayout* m_top;
    QVBoxLayout* m_bottom;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
