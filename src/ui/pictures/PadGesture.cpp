#include "ui/pictures/PadGesture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace kinesta {
namespace {

/// A hand, not a row: four fingers and five differ by the thumb.
std::vector<Point> hand(int fingers) {
    switch (fingers) {
        case 2:
            return {{.37, .45}, {.63, .59}};
        case 3:
            return {{.25, .45}, {.49, .61}, {.74, .52}};
        case 4:
            return {{.16, .45}, {.37, .61}, {.60, .63}, {.82, .49}};
        case 5:
            return {{.14, .32}, {.27, .57}, {.47, .69}, {.67, .65}, {.85, .49}};
        default:
            return {};
    }
}

constexpr double kSlideStep = 0.14;

/// Two columns, so that the fingers do not touch.
std::vector<Point> besideEdge(int fingers, EdgeSlideSide side) {
    std::vector<Point> points;
    for (int i = 0; i < fingers; ++i) {
        const Point left{i % 2 == 0 ? .09 : .20, .5 + (i - (fingers - 1) / 2.0) * kSlideStep};
        if (side != EdgeSlideSide::right)
            points.push_back(left);
        if (side != EdgeSlideSide::left)
            points.push_back({1 - left.x, left.y});
    }
    return points;
}

bool tapsOnRight(GestureKind kind) {
    return kind == GestureKind::tipTapRight || kind == GestureKind::doubleTipTapRight ||
           kind == GestureKind::tripleTipTapRight;
}

/// From the top, not quite round, so that begin and end stay apart.
std::vector<Point> circle(bool isClockwise) {
    constexpr int kSteps = 60;
    constexpr double kRadius = 0.88;
    constexpr double kPart = 306.0 / 360;
    std::vector<Point> points;
    for (int i = 0; i <= kSteps; ++i) {
        const double turned = 2 * std::numbers::pi * kPart * i / kSteps;
        points.push_back({(isClockwise ? 1 : -1) * kRadius * std::sin(turned), kRadius * std::cos(turned)});
    }
    return points;
}

/// How far a pattern reaches from its middle, as a part of the pad's width.
constexpr double kPatternReach = 0.215;

Point patternMiddle(std::optional<AnchorCorner> corner) {
    if (!corner)
        return {.5, .5};
    return {PadGeometry::isLeft(*corner) ? .635 : .365, PadGeometry::isTop(*corner) ? .455 : .545};
}

int drawable(std::optional<std::int64_t> fingers) {
    return fingers && *fingers >= 2 && *fingers <= 5 ? static_cast<int>(*fingers) : 0;
}

}  // namespace

PadGesture PadGesture::of(const GestureRule& rule) {
    return {rule.gesture, drawable(rule.fingerCount), rule.resolvedEdgeSlideSide(), rule.anchorCorner,
            rule.drawPattern};
}

PadGesture PadGesture::of(const DetectedGesture& detected) {
    if (const auto* tap = std::get_if<DetectedTap>(&detected))
        return {tap->gesture, drawable(tap->fingerCount)};
    if (const auto* slide = std::get_if<DetectedEdgeSlide>(&detected))
        return {GestureKind::edgeSlide, drawable(slide->fingerCount), slide->side};
    const auto& draw = std::get<DetectedAnchorDraw>(detected);
    return {GestureKind::anchorDraw, 0, EdgeSlideSide::both, draw.corner, draw.pattern};
}

bool PadGesture::isTap() const { return tapGesture(repetitions()) == kind; }

bool PadGesture::isTipTap() const { return !isTap() && !isPhysicalClick(kind) && repetitionCount(kind).has_value(); }

bool PadGesture::isAnyClick() const { return isPhysicalClick(kind) && !physicalClickPressure(kind); }

namespace PadGeometry {

std::vector<Point> actingFingers(const PadGesture& gesture) {
    if (gesture.kind == GestureKind::edgeSlide)
        return besideEdge(gesture.fingers, gesture.side);
    if (gesture.kind == GestureKind::anchorDraw)
        return drawnPattern(gesture, 0);
    if (gesture.isTipTap())
        return {{tapsOnRight(gesture.kind) ? .71 : .29, .60}};
    return gesture.kind == GestureKind::unconfigured ? std::vector<Point>{} : hand(gesture.fingers);
}

std::optional<Point> restingFinger(const PadGesture& gesture) {
    if (gesture.isTipTap())
        return Point{tapsOnRight(gesture.kind) ? .34 : .66, .46};
    if (gesture.kind == GestureKind::anchorDraw && gesture.corner)
        return Point{isLeft(*gesture.corner) ? .165 : .835, isTop(*gesture.corner) ? .78 : .22};
    return std::nullopt;
}

double slideReach(int fingers) { return std::min(.20, .40 - (fingers - 1) * kSlideStep / 2); }

const std::vector<Point>& pattern(DrawPattern pattern) {
    static const std::array<std::vector<Point>, 9> patterns{{
        {{0, -1}, {0, 1}},
        {{0, 1}, {0, -1}},
        {{1, 0}, {-1, 0}},
        {{-1, 0}, {1, 0}},
        {{-.75, .95}, {-.75, -.8}, {.9, -.8}},
        {{-.95, .8}, {0, -.85}, {.95, .8}},
        {{-1, .6}, {-.34, -.6}, {.34, .6}, {1, -.6}},
        circle(true),
        circle(false),
    }};
    return patterns[static_cast<std::size_t>(pattern)];
}

std::vector<Point> drawnPattern(const PadGesture& gesture, double part) {
    if (!gesture.pattern)
        return {};
    const Point middle = patternMiddle(gesture.corner);
    const std::vector<Point>& whole = pattern(*gesture.pattern);
    double length = 0;
    for (std::size_t i = 1; i < whole.size(); ++i)
        length += distance(whole[i - 1], whole[i]);
    std::vector<Point> drawn{whole.front()};
    double left = part * length;
    for (std::size_t i = 1; i < whole.size() && left > 0; ++i) {
        const double step = distance(whole[i - 1], whole[i]);
        const double share = std::min(1.0, left / step);
        drawn.push_back({std::lerp(whole[i - 1].x, whole[i].x, share), std::lerp(whole[i - 1].y, whole[i].y, share)});
        left -= step;
    }
    for (Point& point : drawn)
        point = {middle.x + point.x * kPatternReach, middle.y + point.y * kPatternReach / padHeight};
    return drawn;
}

bool isLeft(AnchorCorner corner) { return corner == AnchorCorner::topLeft || corner == AnchorCorner::bottomLeft; }

bool isTop(AnchorCorner corner) { return corner == AnchorCorner::topLeft || corner == AnchorCorner::topRight; }

}  // namespace PadGeometry

}  // namespace kinesta
