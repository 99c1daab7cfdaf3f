#include "ui/about/ApplicationIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <array>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kShown = 72;
/// The drawing is this large, with a margin around the ground.
constexpr double kSide = 1024;
constexpr std::array kFingers{QPointF(372, 533), QPointF(506.4, 465.8), QPointF(646.4, 503.6)};
constexpr double kFinger = 48;
constexpr double kHalo = 74;
constexpr double kHaloOpacity = 0.18;
/// Up to this side the icon has neither halos nor a lower edge.
constexpr double kSmall = 24;

void paint(QPainter& painter, double side) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kSide, side / kSide);
    painter.setPen(Qt::NoPen);
    const QRectF ground(100, 100, 824, 824);
    QLinearGradient sky(ground.topLeft(), ground.bottomLeft());
    sky.setColorAt(0, QColor(0x6D, 0x72, 0xF3));
    sky.setColorAt(1, QColor(0x3D, 0x41, 0xB8));
    painter.setBrush(sky);
    painter.drawRoundedRect(ground, 186, 186);
    if (side > kSmall) {
        painter.setBrush(QColor(0x2B, 0x2E, 0x93));
        painter.drawRoundedRect(QRectF(232, 330, 560, 420), 76, 76);
    }
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(232, 302, 560, 420), 76, 76);
    painter.setBrush(QColor(0x4A, 0x4F, 0xCB));
    for (const QPointF& finger : kFingers) {
        if (side > kSmall) {
            painter.setOpacity(kHaloOpacity);
            painter.drawEllipse(finger, kHalo, kHalo);
            painter.setOpacity(1);
        }
        painter.drawEllipse(finger, kFinger, kFinger);
    }
}

}  // namespace

ApplicationIcon::ApplicationIcon(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ApplicationIcon::sizeHint() const { return Unit::of(kShown, kShown); }

void ApplicationIcon::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paint(painter, width());
}

QIcon ApplicationIcon::icon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(painter, side);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace kinesta
