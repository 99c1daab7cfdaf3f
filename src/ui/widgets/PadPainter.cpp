#include "ui/widgets/PadPainter.h"

#include <QPixmapCache>
#include <cmath>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"

namespace kinesta::PadPainter {
namespace {

QColor colour(PadDrawing::Ink ink, const AppTheme& theme) {
    switch (ink) {
        case PadDrawing::Ink::accent:
            return asQColor(theme.accent);
        case PadDrawing::Ink::surface:
            return asQColor(theme.surface);
        case PadDrawing::Ink::line:
            return asQColor(theme.line);
        case PadDrawing::Ink::lip:
            return asQColor(theme.lip);
        case PadDrawing::Ink::pressSoft:
            return asQColor(theme.pressSoft);
        case PadDrawing::Ink::erase:
            return Qt::black;
    }
    return {};
}

void draw(QPainter& painter, const PadDrawing::Layer& layer, const AppTheme& theme) {
    painter.setCompositionMode(layer.ink == PadDrawing::Ink::erase ? QPainter::CompositionMode_Clear
                                                                   : QPainter::CompositionMode_SourceOver);
    painter.setOpacity(layer.opacity);
    painter.setClipping(layer.clip.has_value());
    if (layer.clip)
        painter.setClipPath(PicturePainter::painterPath(*layer.clip));
    const QPainterPath path = PicturePainter::painterPath(layer.path);
    const QColor ink = colour(layer.ink, theme);
    if (layer.stroke == 0)
        return painter.fillPath(path, ink);
    QPen pen(ink, layer.stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (layer.dashes != Point{}) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({layer.dashes.x / layer.stroke, layer.dashes.y / layer.stroke});
    }
    painter.strokePath(path, pen);
}

/// Where the image of a drawing goes whose pad begins at `at`: on whole pixels.
QPointF imagePlace(const QPainter& painter, QPointF at, double margin) {
    const QTransform& toDevice = painter.deviceTransform();
    const double ratio = painter.device()->devicePixelRatioF();
    const QPointF pad = toDevice.map(at);
    const double pixels = std::ceil(margin * ratio);
    return toDevice.inverted().map(QPointF(std::round(pad.x()) - pixels, std::round(pad.y()) - pixels));
}

QString key(const PadGesture& gesture, double width, const AppTheme& theme, double ratio) {
    const auto choice = [](const auto& value) { return value ? static_cast<int>(*value) : -1; };
    QString text = QStringLiteral("pad %1 %2 %3 %4 %5 %6 %7")
                       .arg(static_cast<int>(gesture.kind))
                       .arg(gesture.fingers)
                       .arg(static_cast<int>(gesture.side))
                       .arg(choice(gesture.corner))
                       .arg(choice(gesture.pattern))
                       .arg(width)
                       .arg(ratio);
    for (const Rgb ink : {theme.accent, theme.surface, theme.line, theme.lip, theme.pressSoft})
        text += asQColor(ink).name();
    return text;
}

}  // namespace

QImage image(const PadDrawing& drawing, const AppTheme& theme, double ratio) {
    const double margin = std::ceil(drawing.margin * ratio);
    QImage result(static_cast<int>(std::ceil(drawing.width * ratio + 2 * margin)),
                  static_cast<int>(std::ceil(drawing.height * ratio + 2 * margin)),
                  QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return result;
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(margin, margin);
    painter.scale(ratio, ratio);
    for (const PadDrawing::Layer& layer : drawing.layers)
        draw(painter, layer, theme);
    painter.end();
    result.setDevicePixelRatio(ratio);
    return result;
}

void paint(QPainter& painter, QPointF at, const PadDrawing& drawing, const AppTheme& theme) {
    const double ratio = painter.device()->devicePixelRatioF();
    painter.drawImage(imagePlace(painter, at, drawing.margin), image(drawing, theme, ratio));
}

void paintStill(QPainter& painter, QPointF at, const PadGesture& gesture, double width, const AppTheme& theme) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QString name = key(gesture, width, theme, ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(name, &pixmap)) {
        pixmap = QPixmap::fromImage(image(PadDrawing::of(gesture, PadScene::still(gesture), width), theme, ratio));
        QPixmapCache::insert(name, pixmap);
    }
    painter.drawPixmap(imagePlace(painter, at, PadDrawing::marginOf(width)), pixmap);
}

}  // namespace kinesta::PadPainter
