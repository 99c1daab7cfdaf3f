#pragma once

#include <limits>
#include <optional>

#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta {

/// Which sizes a window accepts, without its frame.
struct WindowSizeLimits {
    /// Width divided by height.
    struct AspectRange {
        double minimum = 0;
        double maximum = std::numeric_limits<double>::infinity();

        friend bool operator==(const AspectRange&, const AspectRange&) = default;
    };

    WindowSize minimum{1, 1};
    WindowSize maximum{std::numeric_limits<int>::max(), std::numeric_limits<int>::max()};
    /// Sizes are `base` plus whole multiples of `increment`, as in a terminal of character cells.
    WindowSize base{0, 0};
    WindowSize increment{1, 1};
    std::optional<AspectRange> aspect;

    bool isFixed() const { return minimum.width >= maximum.width && minimum.height >= maximum.height; }

    friend bool operator==(const WindowSizeLimits&, const WindowSizeLimits&) = default;
};

}  // namespace kinesta
