#pragma once

#include <cmath>
#include <compare>

namespace kinesta {

/// A position on the trackpad in normalized units: 0…1 on both axes, x to the right, y upward. Also a vector between
/// two positions.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// Euclidean distance.
inline double distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

/// Exactly `distance(a, b) <=> limit`, but usually without a square root.
/// `limit` is 0 or a length whose square is a normal number.
inline std::partial_ordering compareDistance(Point a, Point b, double limit) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    const double squared = dx * dx + dy * dy;
    const double squaredLimit = limit * limit;
    constexpr double kMargin = 1e-12;  // far more than the rounding errors of either side
    if (squared < squaredLimit * (1 - kMargin))
        return std::partial_ordering::less;
    if (squared > squaredLimit * (1 + kMargin))
        return std::partial_ordering::greater;
    return distance(a, b) <=> limit;  // close to the limit, or not a number
}

}  // namespace kinesta
