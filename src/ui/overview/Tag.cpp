#include "ui/overview/Tag.h"

#include <QEvent>
#include <QPainter>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {

Tag::Tag(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    measure();
}

void Tag::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ApplicationFontChange)
        measure();
}

void Tag::measure() {
    setFont(Unit::font(0.85, QFont::Medium));
    setContentsMargins(Unit::of(8), Unit::of(2), Unit::of(8), Unit::of(2));
}

void Tag::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(asQColor(WindowTheme::current().control));
        painter.drawRoundedRect(QRectF(rect()), height() / 2.0, height() / 2.0);
    }
    QLabel::paintEvent(event);
}

}  // namespace kinesta
