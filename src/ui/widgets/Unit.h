#pragma once

#include <QFont>
#include <QSize>

namespace kinesta {

/// The unit of every length in the windows: it grows with the font of the application.
class Unit {
  public:
    /// Logical pixels a unit, at least 1.
    static double pixels();
    /// A length in whole logical pixels.
    static int of(double units);
    static QSize of(double width, double height) { return {of(width), of(height)}; }
    /// The application's font at `factor` of its size, never below 11 pixels.
    static QFont font(double factor = 1, QFont::Weight weight = QFont::Normal);
};

}  // namespace kinesta
