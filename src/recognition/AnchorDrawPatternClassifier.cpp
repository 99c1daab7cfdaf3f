#include "recognition/AnchorDrawPatternClassifier.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

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
constexpr double kLShapeLeastCosine = 0.86;
constexpr double kVShapeLeastCosine = 0.72;
constexpr double kThreeStrokeLeastChord = 0.055;
constexpr double kThreeStrokeLeastCosine = 0.68;

constexpr Point kDown{0, -1};
constexpr Point kRight{1, 0};
constexpr Point kDownRight{1, -1};
constexpr Point kUpRight{1, 1};

/// Far more than the rounding errors of what is compared, so that an estimate outside of it decides like the exact
/// value.
constexpr double kMargin = 1e-9;

constexpr std::size_t kInlinePoints = 512;  // three seconds at 170 frames a second

/// The path thinned to points that are some way apart.
struct Trace {
    InlineVector<Point, kInlinePoints> points;
    InlineVector<double, kInlinePoints> lengths;  // of the path from the first point to each

    explicit Trace(std::span<const Point> path) {
        if (path.empty())
            return;
        points.push_back(path[0]);
        lengths.push_back(0);
        Point last = path[0];
        double length = 0;
        for (const Point point : path.subspan(1)) {
            if (!(compareDistance(last, point, kResamplingDistance) >= 0))
                continue;
            length += distance(last, point);
            points.push_back(point);
            lengths.push_back(length);
            last = point;
        }
    }

    std::size_t size() const { return points.size(); }
    double length() const { return lengths[size() - 1]; }
    Point vector(std::size_t from, std::size_t to) const {
        return {points[to].x - points[from].x, points[to].y - points[from].y};
    }
    Point chord() const { return vector(0, size() - 1); }
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
    return smaller >= kCircleLeastExtent && kCircleLengthFactor * larger <= trace.length() &&
           larger / smaller <= kCircleLargestAspect && length(trace.chord()) <= kCircleClosureFactor * smaller;
}

std::optional<DrawPattern> lineOf(const Trace& trace) {
    const Point chord = trace.chord();
    const double chordLength = length(chord);
    if (!(chordLength >= kLineLeastChord && chordLength / trace.length() >= kLineLeastStraightness))
        return std::nullopt;
    if (std::abs(chord.x) * kLineAxisDominance < std::abs(chord.y))
        return chord.y > 0 ? DrawPattern::lineUp : DrawPattern::lineDown;
    if (std::abs(chord.y) * kLineAxisDominance < std::abs(chord.x))
        return chord.x > 0 ? DrawPattern::lineRight : DrawPattern::lineLeft;
    return std::nullopt;
}

/// Whether `stroke` is at least `leastLength` long and the cosine of its angle to `direction` at least `leastCosine`
/// (positive).
bool pointsAlong(Point stroke, Point direction, double leastLength, double leastCosine) {
    const double dot = stroke.x * direction.x + stroke.y * direction.y;
    if (!(dot > 0) || !(compareDistance(stroke, {}, leastLength) >= 0))
        return false;
    // Squares tell almost always, without a root or a quotient.
    const double squaredLengths =
        (stroke.x * stroke.x + stroke.y * stroke.y) * (direction.x * direction.x + direction.y * direction.y);
    const double least = leastCosine * leastCosine * squaredLengths;
    if (dot * dot < least * (1 - kMargin))
        return false;
    if (dot * dot > least * (1 + kMargin))
        return true;
    return dot / (length(stroke) * length(direction)) >= leastCosine;
}

/// Whether the path from point `from` to the last one is no longer than its chord allows for a straight stroke.
bool endsStraight(const Trace& trace, std::size_t from, double chordLength) {
    const double allowed = chordLength / kTwoStrokeLeastStraightness;
    const double estimate = trace.length() - trace.lengths[from];
    const double margin = trace.length() * kMargin;
    if (estimate < allowed - margin)
        return true;
    if (estimate > allowed + margin)
        return false;
    // Too close to call: a difference of sums is not rounded like the sum itself.
    double exact = 0;
    for (std::size_t i = from; i + 1 < trace.size(); ++i)
        exact += distance(trace.points[i], trace.points[i + 1]);
    return chordLength / exact >= kTwoStrokeLeastStraightness;
}

bool matchesTwoStroke(const Trace& trace, Point first, Point second, double leastCosine) {
    const std::size_t count = trace.size();
    if (count < kStrokesLeastPoints)
        return false;
    const std::size_t lastSplit = std::min(3 * count / 4, count - 2);
    for (std::size_t split = count / 4; split <= lastSplit; ++split) {
        const Point a = trace.vector(0, split);
        const Point b = trace.vector(split, count - 1);
        if (pointsAlong(a, first, kTwoStrokeLeastChord, leastCosine) &&
            pointsAlong(b, second, kTwoStrokeLeastChord, leastCosine) &&
            length(a) / trace.lengths[split] >= kTwoStrokeLeastStraightness && endsStraight(trace, split, length(b)))
            return true;
    }
    return false;
}

/// The points of a trace in coordinates along the two edges of the cone of directions that a stroke may have: a stroke
/// is in the cone if and only if it loses in neither.
class ConeCoordinates {
  public:
    struct Place {
        double left;
        double right;

        friend Place highest(Place a, Place b) { return {std::max(a.left, b.left), std::max(a.right, b.right)}; }
    };

    ConeCoordinates(const Trace& trace, Point direction, double leastCosine)
        : m_trace(trace),
          m_direction(direction),
          m_slope(std::sqrt(1 - leastCosine * leastCosine) / leastCosine),
          m_slack(trace.length() * kMargin) {}

    Place operator[](std::size_t index) const {
        const Point v = m_trace.vector(0, index);
        const double along = (v.x * m_direction.x + v.y * m_direction.y) * m_slope;
        const double across = m_direction.x * v.y - m_direction.y * v.x;
        return {along + across, along - across};
    }

    /// False only if a stroke between the places is certainly not in the cone.
    bool mayHold(const Place& from, const Place& to) const {
        return to.left - from.left >= -m_slack && to.right - from.right >= -m_slack;
    }

  private:
    const Trace& m_trace;
    Point m_direction;
    double m_slope;
    double m_slack;  // more than the rounding errors
};

/// The strokes may bow: only their chords count.
bool matchesThreeStroke(const Trace& trace, const std::array<Point, 3>& expected) {
    const std::size_t count = trace.size();
    if (count < kStrokesLeastPoints)
        return false;
    const auto fits = [&](std::size_t from, std::size_t to, Point direction) {
        return pointsAlong(trace.vector(from, to), direction, kThreeStrokeLeastChord, kThreeStrokeLeastCosine);
    };
    const std::size_t firstCorner = count == kStrokesLeastPoints ? 1 : count / 6;  // five points have no sixths
    const std::size_t span = count / 2;

    // Almost all of the many pairs of corners fail by the stroke between them: a glance must be enough for a pair,
    // and for a first corner to which no second one fits.
    const ConeCoordinates cone(trace, expected[1], kThreeStrokeLeastCosine);
    struct Corner {
        std::size_t index;
        ConeCoordinates::Place place;
        ConeCoordinates::Place best;  // in each coordinate, of this corner and the later ones
    };
    InlineVector<Corner, kInlinePoints> secondCorners;
    for (std::size_t j = firstCorner + 1; j <= count - 2; ++j)
        if (fits(j, count - 1, expected[2]))
            secondCorners.push_back({j, cone[j], cone[j]});
    for (std::size_t k = secondCorners.size(); k-- > 1;)
        secondCorners[k - 1].best = highest(secondCorners[k - 1].best, secondCorners[k].best);

    const Corner* later = secondCorners.begin();
    for (std::size_t i = firstCorner; i <= span; ++i) {
        while (later != secondCorners.end() && later->index <= i)
            ++later;
        if (later == secondCorners.end())
            return false;
        const ConeCoordinates::Place first = cone[i];
        if (!cone.mayHold(first, later->best) || !fits(0, i, expected[0]))
            continue;
        for (const Corner* second = later; second != secondCorners.end() && second->index <= i + span; ++second)
            if (cone.mayHold(first, second->place) && fits(i, second->index, expected[1]))
                return true;
    }
    return false;
}

}  // namespace

std::optional<DrawPattern> AnchorDrawPatternClassifier::classify(std::span<const Point> path) {
    const Trace trace(path);
    if (trace.size() < 2 || !(trace.length() >= minimumPathLength))
        return std::nullopt;
    if (isCircle(trace))
        return signedArea(trace.points) < 0 ? DrawPattern::circleClockwise : DrawPattern::circleCounterclockwise;
    if (const auto line = lineOf(trace))
        return line;
    if (matchesTwoStroke(trace, kDown, kRight, kLShapeLeastCosine))
        return DrawPattern::lShape;
    if (matchesTwoStroke(trace, kDownRight, kUpRight, kVShapeLeastCosine))
        return DrawPattern::vShape;
    if (matchesThreeStroke(trace, {kDownRight, kUpRight, kDownRight}) ||
        matchesThreeStroke(trace, {kUpRight, kDownRight, kUpRight}))
        return DrawPattern::zigzag;
    return std::nullopt;
}

}  // namespace kinesta
