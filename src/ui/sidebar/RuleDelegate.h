#pragma once

#include <QAbstractItemDelegate>
#include <QPersistentModelIndex>

#include "ui/models/RuleListModel.h"
#include "ui/sidebar/RuleItemModel.h"
#include "ui/sidebar/SwitchMotion.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// Paints the rows of the rules.
class RuleDelegate final : public QAbstractItemDelegate {
    Q_OBJECT

  public:
    struct Sources {
        const RuleItemModel& rows;
        const RuleListModel& rules;
        const SwitchMotion& switches;
        const FocusRing& ring;
    };

    /// The sources must outlive this.
    explicit RuleDelegate(Sources sources, QObject* parent = nullptr);

    /// The area of an item that takes the presses for its switch.
    QRect switchArea(const QStyleOptionViewItem& option) const;
    /// The row alone, without the room below it.
    QRect rowBox(const QStyleOptionViewItem& option) const;
    /// Leaves room below one row, in pixels.
    void setRoomBelow(const QModelIndex& index, int room);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    struct Parts;
    Parts partsOf(const QStyleOptionViewItem& option, const RuleRow& row) const;
    static int rowHeight();

    Sources m_sources;
    QPersistentModelIndex m_roomy;
    int m_room = 0;
};

}  // namespace kinesta
