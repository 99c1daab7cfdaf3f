#include "ui/widgets/Card.h"

#include <QEvent>
#include <QPainterPath>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/TabOrder.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kRadius = 12;

}  // namespace

Card::Card(QWidget* parent) : QWidget(parent), m_column(new QVBoxLayout(this)) {
    m_column->setContentsMargins(1, 1, 1, 1);
    m_column->setSpacing(0);
}

void Card::insert(int index, QWidget* part) {
    m_column->insertWidget(index, part);
    // Screen readers go through the parts in the order of their stacking.
    for (int i = index + 1; i < m_column->count(); ++i)
        if (QWidget* below = m_column->itemAt(i)->widget())
            below->raise();
    TabOrder::place(*part);
    part->installEventFilter(this);
}

bool Card::eventFilter(QObject* watched, QEvent* event) {
    // The hairlines move with the parts.
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide || event->type() == QEvent::Move ||
        event->type() == QEvent::Resize)
        update();
    return QWidget::eventFilter(watched, event);
}

void Card::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = Unit::of(kRadius);
    const QRectF frame = QRectF(rect()).adjusted(.5, .5, -.5, -.5);
    QPainterPath shape;
    shape.addRoundedRect(frame, radius, radius);
    painter.fillPath(shape, asQColor(theme.surface));
    painter.setClipPath(shape);
    paintGround(painter, theme);
    bool isFirst = true;
    for (int i = 0; i < m_column->count(); ++i) {
        const QWidget* part = m_column->itemAt(i)->widget();
        if (part == nullptr || part->isHidden())
            continue;
        QRect box = part->geometry();
        if (const auto* notice = qobject_cast<const Notice*>(part))
            painter.fillRect(box, notice->ground(theme));
        if (!isFirst) {
            box.setHeight(1);
            if (qobject_cast<const Row*>(part) != nullptr || part->property(kInsetLine).toBool())
                layoutDirection() == Qt::RightToLeft ? box.setRight(box.right() - Row::inset())
                                                     : box.setLeft(box.left() + Row::inset());
            painter.fillRect(box, asQColor(theme.border));
        }
        isFirst = false;
    }
    painter.setClipping(false);
    painter.setPen(asQColor(theme.border));
    painter.drawPath(shape);
}

}  // namespace kinesta
