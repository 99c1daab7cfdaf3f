#pragma once

#include <QPainterPath>
#include <QWidget>

namespace kinesta {

/// Cuts a window to the shape of `path`, in its coordinates, or with an empty path makes it whole again. On X11 only.
/// A mask of Qt's has steps of two pixels where the scale is 200 %.
void cutWindow(const QWidget& window, const QPainterPath& path);

}  // namespace kinesta
