#include "ui/settings/ControlLine.h"

#include <QEvent>
#include <algorithm>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 12;

}  // namespace

ControlLine::ControlLine(std::initializer_list<QWidget*> controls)
    : m_line(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    m_line->setContentsMargins(0, 0, 0, 0);
    // The line itself says how narrow it may become.
    m_line->setSizeConstraint(QLayout::SetNoConstraint);
    for (QWidget* control : controls)
        m_line->addWidget(control, 0, Qt::AlignVCenter | Qt::AlignLeading);
    place();
}

QSize ControlLine::sizeHint() const {
    int width = 0;
    for (int i = 0; i < m_line->count(); ++i)
        if (const QLayoutItem* item = m_line->itemAt(i); !item->isEmpty())
            width += item->sizeHint().width() + (width > 0 ? Unit::of(kGap) : 0);
    return {width, m_line->sizeHint().height()};
}

QSize ControlLine::minimumSizeHint() const {
    int width = 0;
    for (int i = 0; i < m_line->count(); ++i)
        if (const QLayoutItem* item = m_line->itemAt(i); !item->isEmpty())
            width = std::max(width, item->minimumSize().width());
    return {width, m_line->minimumSize().height()};
}

void ControlLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        place();
}

void ControlLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

void ControlLine::place() {
    m_line->setSpacing(Unit::of(kGap));
    const auto direction = width() < sizeHint().width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direction == m_line->direction())
        return;
    m_line->setDirection(direction);
    updateGeometry();
}

}  // namespace kinesta
