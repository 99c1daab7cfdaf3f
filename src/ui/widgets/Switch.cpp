#include "ui/widgets/Switch.h"

#include <QKeyEvent>
#include <QStyle>
#include <cmath>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kWidth = 36;
constexpr double kHeight = 20;
constexpr int kMotion = 120;

}  // namespace

Switch::Switch(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_motion.setDuration(kMotion);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant& position) {
        m_position = position.toDouble();
        update();
    });
    connect(this, &QAbstractButton::toggled, this, &Switch::move);
}

/// Handles changes made while signals are blocked. A click arrives by the signal only.
void Switch::checkStateSet() {
    QAbstractButton::checkStateSet();
    move();
}

void Switch::move() {
    m_motion.stop();
    const double target = isChecked() ? 1 : 0;
    if (m_position == target)
        return;
    if (!isVisible() || WindowTheme::reducesMotion()) {
        m_position = target;
        return update();
    }
    m_motion.setStartValue(m_position);
    m_motion.setEndValue(target);
    m_motion.start();
}

QSize Switch::sizeHint() const {
    const int room = 2 * FocusRing::room();
    return Unit::of(kWidth, kHeight) + QSize(room, room);
}

void Switch::keyPressEvent(QKeyEvent* event) {
    m_ring.show();
    // Return switches, too: who has come by keyboard expects it of a control that looks like this.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        return click();
    QAbstractButton::keyPressEvent(event);
}

void Switch::focusInEvent(QFocusEvent* event) {
    m_ring.follow(*event);
    QAbstractButton::focusInEvent(event);
}

void Switch::focusOutEvent(QFocusEvent* event) {
    m_ring.follow(*event);
    QAbstractButton::focusOutEvent(event);
}

void Switch::paint(QPainter& painter, const QRectF& box, const Look& look, const AppTheme& theme) {
    const double unit = box.height() / kHeight;
    const double edge = 1.5 * unit;
    const double on = look.position;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * (look.isEnabled ? 1 : 0.45));
    const auto pill = [&](const QRectF& shape, const QColor& colour) {
        painter.setBrush(colour);
        painter.drawRoundedRect(shape, shape.height() / 2, shape.height() / 2);
    };
    pill(box, asQColor(theme.line));
    pill(box.adjusted(edge, edge, -edge, -edge), asQColor(theme.surface));
    const double strong = painter.opacity();
    painter.setOpacity(strong * on);
    pill(box, asQColor(theme.accent));
    painter.setOpacity(strong);

    const double radius = std::lerp(5.0, 7.0, on) * unit;
    double middle = std::lerp(10.5, kWidth - 10, on) * unit;
    if (look.direction == Qt::RightToLeft)
        middle = box.width() - middle;
    painter.setBrush(asQColor(on < 0.5 ? theme.line : theme.onAccent));
    painter.drawEllipse(QPointF(box.left() + middle, box.center().y()), radius, radius);
    painter.setOpacity(opacity);
}

void Switch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QSize size = Unit::of(kWidth, kHeight);
    const QRectF box(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, rect()));
    paint(painter, box, {m_position, isEnabled(), layoutDirection()}, WindowTheme::current());
    const int room = FocusRing::room();
    m_ring.paint(painter, box.adjusted(-room, -room, room, room), box.height() / 2 + room);
}

}  // namespace kinesta
