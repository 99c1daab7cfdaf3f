#include "ui/trying/MarkedWords.h"

#include <QEvent>
#include <QPainter>
#include <utility>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {

MarkedWords::MarkedWords(Words::Size size, double side, double gap)
    : m_side(side), m_gap(gap), m_words(new Words({}, size)), m_line(new QHBoxLayout(this)) {
    m_line->addWidget(m_words, 1);
    measure();
}

MarkedWords::Mark MarkedWords::symbol(const Picture& picture, Rgb AppTheme::*ink) {
    return [&picture, ink](QPainter& painter, const QRectF& box, const AppTheme& theme) {
        PicturePainter::paint(painter, box, picture, asQColor(theme.*ink));
    };
}

void MarkedWords::setMark(Mark mark) {
    m_mark = std::move(mark);
    measure();
    update();
}

void MarkedWords::measure() {
    const int before = m_mark ? Unit::of(m_side + m_gap) : 0;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_line->setContentsMargins(isMirrored ? 0 : before, 0, isMirrored ? before : 0, 0);
}

void MarkedWords::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void MarkedWords::paintEvent(QPaintEvent* /*event*/) {
    if (!m_mark)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = Unit::of(m_side);
    const double x = layoutDirection() == Qt::RightToLeft ? width() - side : 0;
    m_mark(painter, {x, m_words->y() + (m_words->fontMetrics().height() - side) / 2, side, side},
           WindowTheme::current());
}

}  // namespace kinesta
