#include "ui/widgets/Unit.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

/// The height of the font at which a unit is one pixel.
constexpr double kFontHeight = 16;
constexpr int kSmallest = 11;

}  // namespace

double Unit::pixels() {
    static QFont measured;
    static double unit = 0;
    const QFont font = QApplication::font();
    if (unit == 0 || font != measured) {
        measured = font;
        unit = std::max(1.0, QFontMetricsF(font).height() / kFontHeight);
    }
    return unit;
}

int Unit::of(double units) { return static_cast<int>(std::lround(units * pixels())); }

QFont Unit::font(double factor, QFont::Weight weight) {
    QFont font = QApplication::font();
    const double size = QFontInfo(font).pixelSize() * factor;
    font.setPixelSize(std::max(kSmallest, static_cast<int>(std::lround(size))));
    font.setWeight(weight);
    return font;
}

}  // namespace kinesta
