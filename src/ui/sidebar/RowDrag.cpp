#include "ui/sidebar/RowDrag.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr std::chrono::milliseconds kFrame{16};
/// Closer to an end of the list than this, it scrolls; faster toward the end and beyond it.
constexpr double kNear = 32;
constexpr int kSlowness = 4;
constexpr int kFastest = 24;
constexpr double kLine = 2;
constexpr double kDot = 6;

}  // namespace

RowDrag::RowDrag(QListView& list) : QObject(&list), m_list(list) {
    m_scrolling.setTimerType(Qt::PreciseTimer);
    m_scrolling.setInterval(kFrame);
    connect(&m_scrolling, &QTimer::timeout, this, &RowDrag::scroll);
}

void RowDrag::moveTo(const QPoint& pointer) {
    m_pointer = pointer;
    find();
    if (speed() == 0)
        m_scrolling.stop();
    else if (!m_scrolling.isActive())
        m_scrolling.start();
}

std::optional<int> RowDrag::drop() {
    m_scrolling.stop();
    m_list.viewport()->update();
    return std::exchange(m_place, std::nullopt);
}

void RowDrag::find() {
    const int inside = std::clamp(m_pointer.y(), 0, m_list.viewport()->height() - 1);
    const QModelIndex under = m_list.indexAt({m_list.viewport()->width() / 2, inside});
    if (!under.isValid())
        m_place = m_list.model()->rowCount();
    else
        m_place = under.row() + (inside > m_list.visualRect(under).center().y() ? 1 : 0);
    m_list.viewport()->update();
}

int RowDrag::speed() const {
    const int near = Unit::of(kNear);
    const int above = near - m_pointer.y();
    const int below = m_pointer.y() - (m_list.viewport()->height() - near);
    if (above > 0)
        return -std::min(1 + above / kSlowness, kFastest);
    return below > 0 ? std::min(1 + below / kSlowness, kFastest) : 0;
}

void RowDrag::scroll() {
    QScrollBar* bar = m_list.verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + speed());
    if (bar->value() == before)
        m_scrolling.stop();
    find();
}

void RowDrag::paint(QPainter& painter, int inset) const {
    if (!m_place || m_list.model()->rowCount() == 0)
        return;
    const int rows = m_list.model()->rowCount();
    const int place = std::min(*m_place, rows);
    const QRect row = m_list.visualRect(m_list.model()->index(std::min(place, rows - 1), 0));
    const double radius = Unit::of(kDot) / 2.0;
    const double y =
        std::clamp(place == rows ? row.bottom() + 1.0 : row.top(), radius, m_list.viewport()->height() - radius);
    const bool isMirrored = m_list.layoutDirection() == Qt::RightToLeft;
    const double begin = isMirrored ? row.right() + 1 - inset : row.left() + inset;
    const double end = isMirrored ? row.left() + inset : row.right() + 1 - inset;
    const QColor colour = asQColor(WindowTheme::current().accent);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, Unit::of(kLine)));
    painter.drawLine(QPointF(begin, y), QPointF(end, y));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(begin + (isMirrored ? -radius : radius), y), radius, radius);
}

}  // namespace kinesta
