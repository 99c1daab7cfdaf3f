#include "platform/linux/windows/TilingGeometry.h"

#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

using Command = WindowTilingMenuCommand;

WindowRectangle leftHalf(const WindowRectangle& area) { return {area.x, area.y, area.width / 2, area.height}; }
WindowRectangle topHalf(const WindowRectangle& area) { return {area.x, area.y, area.width, area.height / 2}; }

WindowRectangle rightHalf(const WindowRectangle& area) {
    const int left = area.width / 2;
    return {area.x + left, area.y, area.width - left, area.height};
}

WindowRectangle bottomHalf(const WindowRectangle& area) {
    const int top = area.height / 2;
    return {area.x, area.y + top, area.width, area.height - top};
}

/// The half for the active window, the half for the others, and whether the others are side by side.
struct Halves {
    WindowRectangle first;
    WindowRectangle rest;
    bool isRestSideBySide = false;
};

Halves halves(Command command, const WindowRectangle& area) {
    switch (command) {
        case Command::right:
        case Command::rightAndLeft:
        case Command::rightThreeUp:
            return {rightHalf(area), leftHalf(area), false};
        case Command::top:
        case Command::topAndBottom:
        case Command::topThreeUp:
            return {topHalf(area), bottomHalf(area), true};
        case Command::bottom:
        case Command::bottomAndTop:
        case Command::bottomThreeUp:
            return {bottomHalf(area), topHalf(area), true};
        default:
            return {leftHalf(area), rightHalf(area), false};
    }
}

/// The largest accepted length that is not above `length`, or the smallest accepted one.
int accepted(int length, int minimum, int maximum, int base, int increment) {
    length = std::clamp(length, minimum, std::max(minimum, maximum));
    if (increment <= 1 || length <= base)
        return length;
    const int snapped = base + (length - base) / increment * increment;
    return snapped < minimum ? snapped + increment : snapped;
}

WindowSize accepted(WindowSize size, const WindowSizeLimits& limits) {
    if (limits.aspect && size.height > 0) {
        const double aspect = static_cast<double>(size.width) / size.height;
        if (aspect > limits.aspect->maximum)
            size.width = static_cast<int>(std::floor(size.height * limits.aspect->maximum));
        else if (aspect < limits.aspect->minimum)
            size.height = static_cast<int>(std::floor(size.width / limits.aspect->minimum));
    }
    return {accepted(size.width, limits.minimum.width, limits.maximum.width, limits.base.width, limits.increment.width),
            accepted(size.height, limits.minimum.height, limits.maximum.height, limits.base.height,
                     limits.increment.height)};
}

}  // namespace

std::size_t tilingWindowCount(Command command) {
    switch (command) {
        case Command::leftAndRight:
        case Command::rightAndLeft:
        case Command::topAndBottom:
        case Command::bottomAndTop:
            return 2;
        case Command::leftThreeUp:
        case Command::rightThreeUp:
        case Command::topThreeUp:
        case Command::bottomThreeUp:
            return 3;
        default:
            return 1;
    }
}

std::vector<WindowRectangle> tilingPlaces(Command command, const WindowRectangle& area, std::size_t windowCount) {
    if (windowCount == 0 || command == Command::center || command == Command::untile)
        return {};
    if (command == Command::fill)
        return {area};
    const Halves parts = halves(command, area);
    switch (std::min(windowCount, tilingWindowCount(command))) {
        case 1:
            return {parts.first};
        case 2:
            return {parts.first, parts.rest};
        default:
            if (parts.isRestSideBySide)
                return {parts.first, leftHalf(parts.rest), rightHalf(parts.rest)};
            return {parts.first, topHalf(parts.rest), bottomHalf(parts.rest)};
    }
}

WindowRectangle centered(WindowSize size, const WindowRectangle& area) {
    const int width = std::min(size.width, area.width);
    const int height = std::min(size.height, area.height);
    return {area.x + (area.width - width) / 2, area.y + (area.height - height) / 2, width, height};
}

WindowRectangle fitted(const WindowRectangle& place, const WindowInsets& frame, const WindowSizeLimits& limits,
                       const WindowRectangle& area) {
    const WindowSize client = accepted((place - frame).size(), limits);
    WindowRectangle result{place.x, place.y, client.width + frame.left + frame.right,
                           client.height + frame.top + frame.bottom};
    result.x = std::max(area.x, std::min(result.x, area.right() - result.width));
    result.y = std::max(area.y, std::min(result.y, area.bottom() - result.height));
    return result;
}

}  // namespace kinesta
