#include "ui/pictures/PadDrawing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace kinesta {
namespace {

using Ink = PadDrawing::Ink;
using Layer = PadDrawing::Layer;
using Kind = Path::Segment::Kind;

constexpr double kLipWidth = 96;
constexpr double kHaloWidth = 48;
constexpr double kHalo = 0.18;
constexpr double kZone = 0.16;
constexpr double kLip = 0.022;

Path polyline(const std::vector<Point>& points) {
    Path path;
    for (const Point& point : points)
        path.segments.push_back({path.segments.empty() ? Kind::move : Kind::line, {point}});
    return path;
}

void append(Path& path, const Path& more) {
    path.segments.insert(path.segments.end(), more.segments.begin(), more.segments.end());
}

/// Two arms at the end of a stroke that goes from `before` to `tip`.
Path arrowHead(Point before, Point tip, double arm, double angle) {
    const double direction = std::atan2(tip.y - before.y, tip.x - before.x);
    const auto end = [&](double turn) {
        return Point{tip.x - arm * std::cos(direction + turn), tip.y - arm * std::sin(direction + turn)};
    };
    return polyline({end(angle), tip, end(-angle)});
}

class PadDrawer {
  public:
    PadDrawer(const PadGesture& gesture, const PadScene& scene, double width)
        : m_gesture(gesture), m_scene(scene), m_width(width), m_height(PadGeometry::padHeight * width) {
        m_drawing.width = width;
        m_drawing.height = m_height;
        m_drawing.margin = PadDrawing::marginOf(width);
    }

    PadDrawing draw() {
        if (m_scene.ground == PadScene::Ground::unset)
            unset();
        else if (m_scene.ground == PadScene::Ground::struckThrough)
            struckThrough();
        else
            gesture();
        return std::move(m_drawing);
    }

  private:
    Point at(Point point, double sunk = 0) const { return {point.x * m_width, (1 - point.y) * m_height + sunk}; }

    Layer& add(Layer layer) { return m_drawing.layers.emplace_back(std::move(layer)); }

    Path outline(double down = 0) const {
        return Path::box(m_line / 2, m_line / 2 + down, m_width - m_line, m_height - m_line, m_radius);
    }

    Path inside() const {
        return Path::box(m_line, m_line + m_sunk, m_width - 2 * m_line, m_height - 2 * m_line, m_radius - m_line / 2);
    }

    /// Right of the slanted line that divides a click of any pressure.
    Path rightPart(bool isRight) const {
        const double edge = isRight ? m_width : 0;
        return polyline(
            {{edge, m_sunk}, {.6 * m_width, m_sunk}, {.4 * m_width, m_height + m_sunk}, {edge, m_height + m_sunk}});
    }

    void unset() {
        add({outline(), Ink::line, 1, m_line, {}, {std::max(2.0, .06 * m_width), std::max(2.0, .05 * m_width)}});
    }

    void struckThrough() {
        const Path stroke = Path::line(at({.16, -.06}), at({.84, 1.06}));
        add({outline(), Ink::line, 1, m_line});
        add({stroke, Ink::erase, 1, 8});
        add({stroke, Ink::line, 1, 2.25});
    }

    void gesture() {
        const double lip = m_width >= kLipWidth ? kLip * m_width : 0;
        m_sunk = lip * m_scene.sunk / 2;
        if (lip > 0 && m_sunk < lip)
            add({outline(lip), Ink::lip});
        pad();
        zones();
        bars();
        arrow();
        pattern();
        for (const PadScene::Ripple& ripple : m_scene.ripples)
            add({Path::circle(at(ripple.at, m_sunk), m_finger * (1 + 1.4 * ripple.progress)), Ink::accent,
                 0.5 * (1 - ripple.progress), std::max(1.0, 0.23 * m_finger)});
        for (const PadScene::Finger& finger : m_scene.fingers)
            finger.isResting ? resting(finger) : acting(finger);
    }

    void pad() {
        const double soft = std::min(1.0, m_scene.press);
        const double deep = std::max(0.0, m_scene.press - 1);
        add({outline(m_sunk), Ink::surface});
        if (soft > 0)
            add({outline(m_sunk), Ink::pressSoft, soft});
        if (deep > 0)
            add({outline(m_sunk), Ink::accent, deep});
        if (m_scene.split > 0)
            add({inside(), Ink::accent, m_scene.split, 0, rightPart(true)});
        if (soft < 1)
            add({outline(m_sunk), Ink::line, 1, m_line});
        if (soft > 0)
            add({outline(m_sunk), Ink::accent, soft, m_line});
    }

    /// Where the gesture must begin.
    void zones() {
        if (m_gesture.kind == GestureKind::edgeSlide) {
            const double band = .29 * m_width;
            if (m_gesture.side != EdgeSlideSide::right)
                add({inside(), Ink::accent, kZone, 0, Path::box(0, 0, band, m_height, 0)});
            if (m_gesture.side != EdgeSlideSide::left)
                add({inside(), Ink::accent, kZone, 0, Path::box(m_width - band, 0, band, m_height, 0)});
        } else if (m_gesture.kind == GestureKind::anchorDraw && m_gesture.corner) {
            const double side = .32 * m_width;
            add({Path::box(PadGeometry::isLeft(*m_gesture.corner) ? 0 : m_width - side,
                           PadGeometry::isTop(*m_gesture.corner) ? 0 : m_height - side, side, side, .8 * m_radius),
                 Ink::accent, kZone, 0, inside()});
        }
    }

    void bars() {
        const double thinnest = m_width <= 20 ? 1 : 1.5;
        const double width = std::max(thinnest, .03 * m_width);
        const double height = std::max(3.0, .09 * m_width);
        const double step = width + std::max(thinnest, .034 * m_width);
        const auto count = static_cast<double>(m_scene.bars.size());
        const double whole = count * step - (step - width);
        const bool isTipTap = m_gesture.isTipTap();
        double x = .90 * m_width - whole;
        if (isTipTap)
            x = at(PadGeometry::actingFingers(m_gesture).front()).x - whole / 2;
        const double y = at({0, isTipTap ? .22 : .20}, m_sunk).y - height / 2;
        for (const double bar : m_scene.bars) {
            marked(Path::box(x, y, width, height, width / 2), bar);
            x += step;
        }
    }

    void arrow() {
        const double x = (m_gesture.side == EdgeSlideSide::both   ? .50
                          : m_gesture.side == EdgeSlideSide::left ? .54
                                                                  : .46) *
                         m_width;
        const double arm = std::max(1.8, .075 * m_width) * std::numbers::sqrt2;
        const Point middle{x, m_height / 2};
        for (const auto& [opacity, y] : {std::pair{m_scene.arrowDown, .24}, std::pair{m_scene.arrowUp, .76}}) {
            if (opacity == 0)
                continue;
            const Point tip{x, at({0, y}).y};
            Path half = Path::line(middle, tip);
            append(half, arrowHead(middle, tip, arm, std::numbers::pi / 4));
            add({half, Ink::accent, opacity, .85 * m_stroke});
        }
    }

    void pattern() {
        if (!m_gesture.pattern || m_scene.drawn == 0)
            return;
        std::vector<Point> points = PadGeometry::drawnPattern(m_gesture, m_scene.drawn);
        for (Point& point : points)
            point = at(point);
        Path path = polyline(points);
        const double arm = std::max(2.6, .078 * m_width) * m_scene.head;
        if (arm > 0)
            append(path, headOf(points, arm));
        add({path, Ink::accent, m_scene.drawnOpacity, m_stroke});
    }

    void resting(const PadScene::Finger& finger) {
        const Path ring = Path::circle(at(finger.at), 1.3 * m_finger * finger.scale);
        if (m_width >= kHaloWidth)
            add({ring, Ink::accent, kHalo * finger.opacity});
        add({ring, Ink::accent, finger.opacity, std::max(1.1, .55 * m_finger)});
    }

    void acting(const PadScene::Finger& finger) {
        const double radius = m_finger * finger.scale * (m_gesture.kind == GestureKind::edgeSlide ? 0.82 : 1);
        const Point middle = at(finger.at, m_sunk);
        const double paper = std::max(0.0, 1 - m_scene.press);
        if (m_width >= kHaloWidth && paper > 0 && m_scene.hasHalos)
            add({Path::circle(middle, 1.75 * radius), Ink::accent, kHalo * finger.opacity * paper, 0, inside()});
        marked(Path::circle(middle, radius), finger.opacity);
    }

    /// A mark in accent that changes to surface where the pad itself is in accent.
    void marked(const Path& path, double opacity) {
        const double deep = std::max(0.0, m_scene.press - 1);
        if (deep < 1)
            add({path, Ink::accent, opacity, 0, m_scene.split > 0 ? std::optional(rightPart(false)) : std::nullopt});
        if (deep > 0)
            add({path, Ink::surface, opacity * deep});
        if (m_scene.split > 0)
            add({path, Ink::surface, opacity * m_scene.split, 0, rightPart(true)});
    }

  public:
    /// The head along the last tenth of a curve, or along the last stroke.
    static Path headOf(const std::vector<Point>& points, double arm) {
        const std::size_t back = points.size() > 10 ? points.size() / 10 : 1;
        constexpr double kAngle = 41 * std::numbers::pi / 180;
        return arrowHead(points[points.size() - 1 - back], points.back(), arm, kAngle);
    }

  private:
    const PadGesture& m_gesture;
    const PadScene& m_scene;
    double m_width;
    double m_height;
    double m_line = m_width <= 20 ? 1 : m_width <= 40 ? 1.25 : 1.5;
    double m_radius = std::max(2.0, .10 * m_width);
    double m_finger = 0.9 + .05 * m_width;
    double m_stroke = 0.75 + .028 * m_width;
    double m_sunk = 0;
    PadDrawing m_drawing;
};

}  // namespace

PadDrawing PadDrawing::of(const PadGesture& gesture, const PadScene& scene, double width) {
    return PadDrawer(gesture, scene, width).draw();
}

PadDrawing PadDrawing::figure(DrawPattern pattern, double side) {
    std::vector<Point> points = PadGeometry::pattern(pattern);
    for (Point& point : points)
        point = {side * (.5 + .36 * point.x), side * (.5 - .36 * point.y)};
    Path path = polyline(points);
    append(path, PadDrawer::headOf(points, .18 * side));
    PadDrawing drawing{side, side, .1 * side, {}};
    drawing.layers.push_back({path, Ink::accent, 1, std::max(1.6, .075 * side)});
    drawing.layers.push_back({Path::circle(points.front(), .1 * side), Ink::accent});
    return drawing;
}

double PadDrawing::marginOf(double width) { return std::ceil(.06 * width) + 2; }

double PadDrawing::heightWithLip(double width) {
    return (PadGeometry::padHeight + (width >= kLipWidth ? kLip : 0)) * width;
}

}  // namespace kinesta
