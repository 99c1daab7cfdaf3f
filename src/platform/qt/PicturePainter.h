#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include "support/Picture.h"

namespace kinesta::PicturePainter {

QPainterPath painterPath(const Path& path);

/// The picture as large as it fits into a transparent image of `size` pixels, in its middle. Straight strokes lie on
/// whole pixels.
QImage image(const Picture& picture, QSize size, const QColor& colour);

/// Paints it into the middle of `box`, on whole pixels of the device. Leaves the painter as it was.
void paint(QPainter& painter, const QRectF& box, const Picture& picture, const QColor& colour);

}  // namespace kinesta::PicturePainter
