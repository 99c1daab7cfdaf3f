#include "ui/widgets/PlayButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/Ground.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSide = 22;
constexpr double kSymbol = 12;

}  // namespace

PlayButton::PlayButton(QWidget* parent) : QAbstractButton(parent) {
    setAccessibleName(tr("Perform the gesture"));
    setToolTip(tr("Perform the gesture"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize PlayButton::sizeHint() const { return Unit::of(kSide, kSide); }

void PlayButton::keyPressEvent(QKeyEvent* event) {
    m_ring.show();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        return click();
    QAbstractButton::keyPressEvent(event);
}

void PlayButton::focusInEvent(QFocusEvent* event) {
    m_ring.follow(*event);
    QAbstractButton::focusInEvent(event);
}

void PlayButton::focusOutEvent(QFocusEvent* event) {
    m_ring.follow(*event);
    QAbstractButton::focusOutEvent(event);
}

void PlayButton::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() || underMouse() ? Ground::controlColour({false, isDown(), underMouse()}, theme)
                                              : asQColor(theme.surface));
    painter.drawEllipse(rect());
    const double side = Unit::of(kSymbol);
    const QRectF box((width() - side) / 2, (height() - side) / 2, side, side);
    PicturePainter::paint(painter, box, windowSymbol(WindowSymbol::play), asQColor(theme.accent));
    m_ring.paint(painter, rect(), height() / 2.0);
}

}  // namespace kinesta
