#pragma once

#include <QImage>
#include <QPainter>

#include "app/AppTheme.h"
#include "ui/pictures/PadDrawing.h"

namespace kinesta::PadPainter {

/// The drawing with its margin on all sides, at `ratio` pixels a unit of the drawing.
QImage image(const PadDrawing& drawing, const AppTheme& theme, double ratio);

/// Paints the drawing so that its pad begins at `at`, on whole pixels of the device.
void paint(QPainter& painter, QPointF at, const PadDrawing& drawing, const AppTheme& theme);

/// The same for the still picture of a gesture on a pad `width` wide; drawn once and then kept.
void paintStill(QPainter& painter, QPointF at, const PadGesture& gesture, double width, const AppTheme& theme);

}  // namespace kinesta::PadPainter
