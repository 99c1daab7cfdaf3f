#pragma once

#include <algorithm>

namespace kinesta {

/// A width and a height in pixels.
struct WindowSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

/// A rectangle on the desktop, in pixels from the upper left corner of the desktop, y growing downward. Empty if its
/// width or height is 0 or less.
struct WindowRectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool isEmpty() const { return width <= 0 || height <= 0; }
    WindowSize size() const { return {width, height}; }

    /// The common part; empty if they only touch.
    WindowRectangle intersection(const WindowRectangle& other) const {
        const int left = std::max(x, other.x);
        const int top = std::max(y, other.y);
        return {left, top, std::max(0, std::min(right(), other.right()) - left),
                std::max(0, std::min(bottom(), other.bottom()) - top)};
    }

    bool intersects(const WindowRectangle& other) const { return !intersection(other).isEmpty(); }

    friend bool operator==(const WindowRectangle&, const WindowRectangle&) = default;
};

/// The distance between a rectangle and one inside it, in pixels for each side; negative where the inner one sticks
/// out.
struct WindowInsets {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;

    friend bool operator==(const WindowInsets&, const WindowInsets&) = default;
};

inline WindowRectangle operator-(const WindowRectangle& outer, const WindowInsets& insets) {
    return {outer.x + insets.left, outer.y + insets.top, outer.width - insets.left - insets.right,
            outer.height - insets.top - insets.bottom};
}

inline WindowRectangle operator+(const WindowRectangle& inner, const WindowInsets& insets) {
    return {inner.x - insets.left, inner.y - insets.top, inner.width + insets.left + insets.right,
            inner.height + insets.top + insets.bottom};
}

}  // namespace kinesta
