#include "ui/action/WrappingLine.h"

#include <algorithm>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 8;
/// A part that can shrink keeps this width beside the others.
constexpr double kNarrow = 140;

}  // namespace

WrappingLine::WrappingLine(QWidget* parent) : QWidget(parent), m_line(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->setSpacing(Unit::of(kGap));
    // The line itself says how narrow it may become.
    m_line->setSizeConstraint(QLayout::SetNoConstraint);
}

void WrappingLine::add(QWidget* part, int stretch) { m_line->addWidget(part, stretch); }

int WrappingLine::widthTogether() const {
    int width = 0;
    for (int i = 0; i < m_line->count(); ++i) {
        const QWidget* part = m_line->itemAt(i)->widget();
        if (part == nullptr || part->isHidden())
            continue;
        const int wanted = part->sizeHint().width();
        width += (width > 0 ? m_line->spacing() : 0) +
                 (m_line->stretch(i) > 0 ? std::min(wanted, Unit::of(kNarrow)) : wanted);
    }
    return width;
}

QSize WrappingLine::sizeHint() const { return m_line->sizeHint(); }

QSize WrappingLine::minimumSizeHint() const {
    int widest = 0;
    for (int i = 0; i < m_line->count(); ++i)
        if (const QWidget* part = m_line->itemAt(i)->widget(); part != nullptr && !part->isHidden())
            widest = std::max(widest, part->minimumSizeHint().width());
    return {widest, m_line->minimumSize().height()};
}

void WrappingLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const auto direction = width() < widthTogether() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direction == m_line->direction())
        return;
    m_line->setDirection(direction);
    updateGeometry();
}

}  // namespace kinesta
