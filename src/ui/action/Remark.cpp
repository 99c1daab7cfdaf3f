#include "ui/action/Remark.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSymbol = 15;
constexpr double kGap = 6;

}  // namespace

Remark::Remark(Kind kind, QWidget* parent)
    : QWidget(parent), m_kind(kind), m_words(new Words({}, Words::Size::detail)) {
    auto* line = new QHBoxLayout(this);
    line->setSpacing(0);
    line->addWidget(m_words);
    measure();
    hide();
}

void Remark::setText(const QString& text) {
    m_words->setText(text);
    setVisible(!text.isEmpty());
}

void Remark::measure() {
    const int side = Unit::of(kSymbol + kGap);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    layout()->setContentsMargins(isMirrored ? 0 : side, 0, isMirrored ? side : 0, 0);
}

void Remark::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void Remark::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    const bool isError = m_kind == Kind::error;
    QPainter painter(this);
    const double side = Unit::of(kSymbol);
    const double x = layoutDirection() == Qt::RightToLeft ? width() - side : 0;
    // Beside the first line of the words.
    const double above = (m_words->height() - m_words->heightForWidth(m_words->width())) / 2.0;
    const double y = m_words->y() + above + (QFontMetricsF(m_words->font()).height() - side) / 2;
    PicturePainter::paint(painter, {x, y, side, side},
                          windowSymbol(isError ? WindowSymbol::fails : WindowSymbol::caution),
                          asQColor(isError ? theme.danger : theme.caution));
}

}  // namespace kinesta
