#include "recognition/AnchorDrawPatternClassifier.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "support/InlineVector.h"

namespace kinesta {
namespace {

// Lengths are in normalized units.
constexpr double kResamplingDistance = 0.006;

constexpr std::size_t kCircleLeastPoints = 8;
constexpr double kCircleLeastExtent = 0.11;
constexpr double kCircleLengthFactor = 2.2;    // path length to the larger extent, at least
constexpr double kCircleLargestAspect = 1.9;   // larger to smaller extent
constexpr double kCircleClosureFactor = 0.65;  // gap between the ends to the smaller extent, at most

constexpr double kLineLeastChord = 0.13;
constexpr double kLineLeastStraightness = 0.84;  // chord to path length
constexpr double kLineAxisDominance = 1.35;      // one axis of the chord to the other

constexpr std::size_t kStrokesLeastPoints = 5;
constexpr double kTwoStrokeLeastChord = 0.075;
constexpr double kTwoStrokeLeastStraightness = 0.78;
constexpr double kLShapeLeastSimilarity = 0.86;
constexpr double kVShapeLeastSimilarity = 0.72;
constexpr double kThreeStrokeLeastChord = 0.055;
constexpr double kThreeStrokeLeastSimilarity = 0.68;

constexpr Point kDown{0, -1};
constexpr Point kRight{1, 0};
constexpr Point kDownRight{1, -1};
constexpr Point kUpRight{1, 1};

constexpr std::size_t kInlinePoints = 512;  // three seconds at 170 frames a second

/// The path thinned to points that are some way apart.
struct Trace {
    InlineVector<Point, kInlinePoints> points;
    InlineVector<double, kInlinePoints> segments;  // the distance from each point to the next

    explicit Trace(std::span<const Point> path) {
        for (const Point point : path) {
            if (!points.empty()) {
                if (!(compareDistance(points[size() - 1], point, kResamplingDistance) >= 0))
                    continue;
                segments.push_back(distance(points[size() - 1], point));
            }
            points.push_back(point);
        }
    }

    std::size_t size() const { return points.size(); }
    Point vector(std::size_t from, std::size_t to) const {
        return {points[to].x - points[from].x, points[to].y - points[from].y};
    }
    Point chord() const { return vector(0, size() - 1); }
    double pathLength(std::size_t from, std::size_t to) const {
        return std::accumulate(segments.begin() + from, segments.begin() + to, 0.0);
    }
    double pathLength() const { return pathLength(0, size() - 1); }
};

double length(Point vector) { return distance(vector, {}); }

double signedArea(std::span<const Point> points) {
    double doubled = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        doubled += points[i].x * points[i + 1].y - points[i + 1].x * points[i].y;
    const Point first = points.front();
    const Point last = points.back();
    if (first != last)
        doubled += last.x * first.y - first.x * last.y;
    return 0.5 * doubled;
}

bool isCircle(const Trace& trace) {
    if (trace.size() < kCircleLeastPoints)
        return false;
    Point low = trace.points[0];
    Point high = low;
    for (const Point point : trace.points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    const double larger = std::max(high.x - low.x, high.y - low.y);
    const double smaller = std::min(high.x - low.x, high.y - low.y);
    return smaller >= kCircleLeastExtent && kCircleLengthFactor * larger <= trace.pathLength() &&
           larger / smaller <= kCircleLargestAspect && length(trace.chord()) <= kCircleClosureFactor * smaller;
}

std::optional<DrawPattern> lineOf(const Trace& trace) {
    const Point chord = trace.chord();
    const double chordLength = length(chord);
    if (!(chordLength >= kLineLeastChord && chordLength / trace.pathLength() >= kLineLeastStraightness))
        return std::nullopt;
    if (std::abs(chord.x) * kLineAxisDominance < std::abs(chord.y))
        return chord.y > 0 ? DrawPattern::lineUp : DrawPattern::lineDown;
    if (std::abs(chord.y) * kLineAxisDominance < std::abs(chord.x))
        return chord.x > 0 ? DrawPattern::lineRight : DrawPattern::lineLeft;
    return std::nullopt;
}

/// Whether `stroke` is at least `leastLength` long and the cosine of its angle to `direction` at least
/// `minimumSimilarity` (positive).
bool pointsAlong(Point stroke, Point direction, double leastLength, double minimumSimilarity) {
    const double dot = stroke.x * direction.x + stroke.y * direction.y;
    // Squares reject almost every stroke without a root; the margin is far more than their rounding errors.
    constexpr double kMargin = 1e-9;
    const double squaredLengths =
        (stroke.x * stroke.x + stroke.y * stroke.y) * (direction.x * direction.x + direction.y * direction.y);
    if (!(dot > 0) || dot * dot < (1 - kMargin) * minimumSimilarity * minimumSimilarity * squaredLengths)
        return false;
    const double strokeLength = length(stroke);
    return strokeLength >= leastLength && dot / (strokeLength * length(direction)) >= minimumSimilarity;
}

bool matchesTwoStroke(const Trace& trace, Point expectedFirst, Point expectedSecond, double minimumSimilarity) {
    const std::size_t count = trace.size();
    if (count < kStrokesLeastPoints)
        return false;
    const auto fits = [&](std::size_t from, std::size_t to, Point expected) {
        return pointsAlong(trace.vector(from, to), expected, kTwoStrokeLeastChord, minimumSimilarity);
    };
    const auto isStraight = [&](std::size_t from, std::size_t to) {
        return length(trace.vector(from, to)) / trace.pathLength(from, to) >= kTwoStrokeLeastStraightness;
    };
    const std::size_t lastSplit = std::min(3 * count / 4, count - 2);
    for (std::size_t split = count / 4; split <= lastSplit; ++split)
        if (fits(0, split, expectedFirst) && fits(split, count - 1, expectedSecond) && isStraight(0, split) &&
            isStraight(split, count - 1))
            return true;
    return false;
}

/// The strokes may bow: only their chords count.
bool matchesThreeStroke(const Trace& trace, const std::array<Point, 3>& expected) {
    const std::size_t count = trace.size();
    if (count < kStrokesLeastPoints)
        return false;
    const auto fits = [&](std::size_t from, std::size_t to, Point direction) {
        return pointsAlong(trace.vector(from, to), direction, kThreeStrokeLeastChord, kThreeStrokeLeastSimilarity);
    };
    const std::size_t firstCorner = count == kStrokesLeastPoints ? 1 : count / 6;  // five points have no sixths
    const std::size_t span = count / 2;
    InlineVector<std::size_t, kInlinePoints> secondCorners;
    for (std::size_t j = firstCorner + 1; j <= count - 2; ++j)
        if (fits(j, count - 1, expected[2]))
            secondCorners.push_back(j);
    for (std::size_t i = firstCorner; i <= span; ++i)
        if (fits(0, i, expected[0]))
            for (const std::size_t j : secondCorners)
                if (j > i && j <= i + span && fits(i, j, expected[1]))
                    return true;
    return false;
}

}  // namespace

std::optional<DrawPattern> AnchorDrawPatternClassifier::classify(std::span<const Point> path) {
    const Trace trace(path);
    if (trace.size() < 2 || !(trace.pathLength() >= minimumPathLength))
        return std::nullopt;
    if (isCircle(trace))
        return signedArea(trace.points) < 0 ? DrawPattern::circleClockwise : DrawPattern::circleCounterclockwise;
    if (const auto line = lineOf(trace))
        return line;
    if (matchesTwoStroke(trace, kDown, kRight, kLShapeLeastSimilarity))
        return DrawPattern::lShape;
    if (matchesTwoStroke(trace, kDownRight, kUpRight, kVShapeLeastSimilarity))
        return DrawPattern::vShape;
    if (matchesThreeStroke(trace, {kDownRight, kUpRight, kDownRight}) ||
        matchesThreeStroke(trace, {kUpRight, kDownRight, kUpRight}))
        return DrawPattern::zigzag;
    return std::nullopt;
}

}  // namespace kinesta
