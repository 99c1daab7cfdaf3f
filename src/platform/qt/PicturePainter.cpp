#include "platform/qt/PicturePainter.h"

#include <algorithm>
#include <cmath>

namespace kinesta::PicturePainter {
namespace {

using Segment = Path::Segment;
using Kind = Segment::Kind;

/// In pixels. A thinner line that crosses pixels slantwise fills none of them and looks grey.
constexpr double kThinnestSlanted = 1.4;

QPointF asQt(Point point) { return {point.x, point.y}; }

/// Whether it has a line that pixels can show without steps.
bool hasUprightLine(const Path& path) {
    Point at;
    for (const Segment& segment : path.segments) {
        const Point end = segment.points[segment.kind == Kind::curve ? 2 : 0];
        if (segment.kind == Kind::line && ((at.x == end.x) != (at.y == end.y)))
            return true;
        if (segment.kind != Kind::close)
            at = end;
    }
    return false;
}

struct Span {
    double first;
    double last;
};

/// Where the middle of a stroke goes so that the stroke's sides fall between pixels.
Span onPixels(Span span, double stroke) {
    const double half = stroke / 2;
    return {std::round(span.first - half) + half, std::round(span.last + half) - half};
}

/// Moves the sides of the path's frame onto whole pixels, and what is between them in proportion.
QTransform ontoPixels(const QRectF& frame, double stroke) {
    const Span across = onPixels({frame.left(), frame.right()}, stroke);
    const Span down = onPixels({frame.top(), frame.bottom()}, stroke);
    const double scaleX = frame.width() > 0 ? (across.last - across.first) / frame.width() : 1;
    const double scaleY = frame.height() > 0 ? (down.last - down.first) / frame.height() : 1;
    return QTransform::fromTranslate(-frame.left(), -frame.top()) * QTransform::fromScale(scaleX, scaleY) *
           QTransform::fromTranslate(across.first, down.first);
}

void draw(QPainter& painter, const Shape& shape, const QTransform& toPixels, double scale, const QColor& colour) {
    const bool erases = shape.ink == Shape::Ink::erase;
    painter.setCompositionMode(erases ? QPainter::CompositionMode_Clear : QPainter::CompositionMode_SourceOver);
    QPainterPath path = toPixels.map(painterPath(shape.path));
    if (shape.stroke == 0)
        return painter.fillPath(path, colour);
    double stroke = shape.stroke * scale;
    if (!erases && hasUprightLine(shape.path)) {
        stroke = std::max(1.0, std::round(stroke));
        path = ontoPixels(path.boundingRect(), stroke).map(path);
    } else {
        stroke = std::max(kThinnestSlanted, stroke);
    }
    painter.strokePath(path, QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace

QPainterPath painterPath(const Path& path) {
    QPainterPath result;
    for (const Segment& segment : path.segments) {
        const QPointF first = asQt(segment.points[0]);
        switch (segment.kind) {
            case Kind::move:
                result.moveTo(first);
                break;
            case Kind::line:
                result.lineTo(first);
                break;
            case Kind::curve:
                result.cubicTo(first, asQt(segment.points[1]), asQt(segment.points[2]));
                break;
            case Kind::close:
                result.closeSubpath();
                break;
        }
    }
    return result;
}

QImage image(const Picture& picture, QSize size, const QColor& colour) {
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return result;
    result.fill(Qt::transparent);
    const double scale = std::min(size.width() / picture.width, size.height() / picture.height);
    const auto toPixels =
        QTransform::fromScale(scale, scale) * QTransform::fromTranslate((size.width() - picture.width * scale) / 2,
                                                                        (size.height() - picture.height * scale) / 2);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : picture.shapes)
        draw(painter, shape, toPixels, scale, colour);
    return result;
}

void paint(QPainter& painter, const QRectF& box, const Picture& picture, const QColor& colour) {
    // Through an image: erasing must not reach what lies under the picture.
    const QTransform& toDevice = painter.deviceTransform();
    const QRect pixels = toDevice.mapRect(box).toRect();
    QImage drawn = image(picture, pixels.size(), colour);
    drawn.setDevicePixelRatio(toDevice.m11());
    painter.drawImage(toDevice.inverted().map(QPointF(pixels.topLeft())), drawn);
}

}  // namespace kinesta::PicturePainter
