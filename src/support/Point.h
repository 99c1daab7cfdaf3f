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

/// Far more than the rounding errors of comparing squares instead of lengths.
inline constexpr double kSquareMargin = 1e-12;

inline double squaredDistance(Point a, Point b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy;
}

/// Whether `distance(a, b)` is less than `limit` by more than rounding errors. Without a square root or a call.
inline bool isClearlyCloser(Point a, Point b, double limit) {
    return squaredDistance(a, b) < limit * limit * (1 - kSquareMargin);
}

/// Exactly `distance(a, b) <=> limit`, but usually without a square root.
/// `limit` is 0 or a length whose square is a normal number.
inline std::partial_ordering compareDistance(Point a, Point b, double limit) {
    if (isClearlyCloser(a, b, limit))
        return std::partial_ordering::less;
    if (squaredDistance(a, b) > limit * limit * (1 + kSquareMargin))
        return std::partial_ordering::greater;
    return distance(a, b) <=> limit;  // close to the limit, or not a number
}

}  // namespace kinesta
