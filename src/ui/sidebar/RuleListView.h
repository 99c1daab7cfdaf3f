#pragma once

#include <QElapsedTimer>
#include <QListView>
#include <QPersistentModelIndex>
#include <optional>
#include <set>

#include "ui/WindowCommands.h"
#include "ui/models/RuleListModel.h"
#include "ui/sidebar/RowDrag.h"
#include "ui/sidebar/RuleDelegate.h"
#include "ui/sidebar/RuleItemModel.h"
#include "ui/sidebar/SwitchMotion.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// The list of the rules: selects, switches, moves and deletes them.
class RuleListView final : public QListView {
    Q_OBJECT

  public:
    /// Both must outlive this.
    RuleListView(RuleListModel& rules, WindowCommands& commands, QWidget* parent = nullptr);

    /// The row of a rule with its room below, in the viewport; empty without a row.
    QRect itemOf(const Uuid& rule) const { return visualRect(m_rows->indexOf(rule)); }
    void showWhole(const Uuid& rule) { scrollTo(m_rows->indexOf(rule)); }
    /// Leaves room below the row of a rule.
    void setRoomBelow(const Uuid& rule, int room);

  Q_SIGNALS:
    /// The person opened a row.
    void opened();
    /// To the name of the selected rule.
    void nameWanted();
    /// This rule cannot be switched on.
    void refused(const kinesta::Uuid& rule);
    /// The rows lie elsewhere.
    void arranged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int x, int y) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    struct Anchor {
        Uuid rule;
        int top = 0;
    };

    QStyleOptionViewItem optionFor(const QModelIndex& index) const;
    std::optional<Uuid> ruleAt(const QModelIndex& index) const;
    QModelIndex switchAt(const QPoint& point) const;
    bool takeKey(const QKeyEvent& event);
    void toggle(const Uuid& pressed, const std::set<Uuid>& rules);
    void showMenu(const QPoint& at);
    void tellSelection();
    void followSelection();
    void rememberPlace();
    void restorePlace();

    RuleListModel& m_rules;
    WindowCommands& m_commands;
    RuleItemModel* m_rows;
    SwitchMotion* m_switches;
    RuleDelegate* m_delegate;
    RowDrag* m_drag;
    FocusRing m_ring;
    std::optional<QPoint> m_pressed;
    QPersistentModelIndex m_pressedSwitch;
    QElapsedTimer m_letter;
    std::optional<Anchor> m_anchor;
    bool m_isFollowing = false;
    Subscription m_markedObserver;
    Subscription m_selectionObserver;
};

}  // namespace kinesta
