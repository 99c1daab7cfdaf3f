#pragma once

#include "support/Point.h"

namespace kinesta {

/// A rectangle of a screen in logical points.
struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    double maxX() const { return x + width; }
    double maxY() const { return y + height; }
    double midX() const { return x + width / 2; }
    double midY() const { return y + height / 2; }

    /// The lower edges belong to it, the upper ones to its neighbours.
    bool contains(Point point) const { return point.x >= x && point.x < maxX() && point.y >= y && point.y < maxY(); }

    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

}  // namespace kinesta
