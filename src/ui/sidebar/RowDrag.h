#pragma once

#include <QListView>
#include <QTimer>
#include <optional>

namespace kinesta {

/// Rows that the pointer drags to another place of their list.
class RowDrag final : public QObject {
    Q_OBJECT

  public:
    /// `list` must outlive this.
    explicit RowDrag(QListView& list);

    bool isActive() const { return m_place.has_value(); }
    /// Begins with the pointer at a point of the viewport, or goes on to it.
    void moveTo(const QPoint& pointer);
    /// Ends. Returns the row before which the dragged ones belong.
    std::optional<int> drop();
    void cancel() { drop(); }
    /// The line at the place, over the rows.
    void paint(QPainter& painter, int inset) const;

  private:
    void find();
    void scroll();
    int speed() const;

    QListView& m_list;
    QPoint m_pointer;
    std::optional<int> m_place;
    QTimer m_scrolling;
};

}  // namespace kinesta
