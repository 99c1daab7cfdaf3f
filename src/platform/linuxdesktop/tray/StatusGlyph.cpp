#include "platform/linuxdesktop/tray/StatusGlyph.h"

#include <QPainter>
#include <algorithm>

#include "app/TrayIcon.h"
#include "platform/qt/PicturePainter.h"

namespace kinesta {
namespace {

constexpr QRgb kLight = 0xFFF4F5F7;
constexpr QRgb kDark = 0xFF24262B;
constexpr float kEdgeOpacity = 0.6F;

}  // namespace

QImage StatusGlyph::onGround(bool isEnabled, QSize size, bool isDarkGround) {
    const Picture picture = TrayIcon::image(isEnabled);
    const QImage glyph = PicturePainter::image(picture, size, isDarkGround ? kLight : kDark);
    const QImage shadow = PicturePainter::image(picture, size, isDarkGround ? kDark : kLight);
    QImage result(glyph.size(), glyph.format());
    result.fill(Qt::transparent);
    const int width = std::max(1, size.width() / 32);
    QPainter painter(&result);
    for (const QPoint& side : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        painter.drawImage(side * width, shadow);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(result.rect(), QColor::fromRgbF(0, 0, 0, kEdgeOpacity));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, glyph);
    return result;
}

QImage StatusGlyph::inColour(bool isEnabled, QSize size, const QColor& colour) {
    return PicturePainter::image(TrayIcon::image(isEnabled), size, colour);
}

bool StatusGlyph::isDark(const QColor& ground) { return qGray(ground.rgb()) < 128; }

}  // namespace kinesta
