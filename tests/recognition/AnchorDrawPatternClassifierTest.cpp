#include "recognition/AnchorDrawPatternClassifier.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace kinesta::testing {
namespace {

using Path = std::vector<Point>;

std::string patternOf(const Path& path) {
    const auto pattern = AnchorDrawPatternClassifier::classify(path);
    return pattern ? std::string(rawValue(*pattern)) : "nothing";
}

/// From the origin along the vectors, so many points each.
Path strokes(std::initializer_list<Point> vectors, int pointsEach = 12) {
    Path path{{0, 0}};
    for (const Point vector : vectors) {
        const Point start = path.back();
        for (int i = 1; i <= pointsEach; ++i)
            path.push_back({start.x + vector.x * i / pointsEach, start.y + vector.y * i / pointsEach});
    }
    return path;
}

/// Three strokes to the right, the first one downward.
Path zigzag(double size, int pointsEach = 12) {
    return strokes({{size, -size}, {size, size}, {size, -size}}, pointsEach);
}

/// Counterclockwise around a rectangle, by its corners and the middles of its sides.
Path around(double w, double h) {
    return {{0, 0}, {w / 2, 0}, {w, 0}, {w, h / 2}, {w, h}, {w / 2, h}, {0, h}, {0, h / 2}, {0, 0}};
}

void expectPatterns(const std::vector<std::tuple<const char*, Path, const char*>>& cases) {
    for (const auto& [name, path, pattern] : cases)
        EXPECT_EQ(patternOf(path), pattern) << name;
}

TEST(AnchorDrawPatternClassifier, FindsLines) {
    Path crowded;
    for (int i = 0; i <= 31; ++i)
        crowded.push_back({0, 0.005 * i});  // thinned to every second one, so that it ends at 0.15
    expectPatterns({
        {"down", {{0.5, 0.4}, {0.5, 0.2}}, "lineDown"},
        {"right", {{0.2, 0.5}, {0.4, 0.5}}, "lineRight"},
        {"as short as allowed", {{0, 0}, {0, 0.16}}, "lineUp"},
        {"too short", {{0, 0}, {0, 0.159999}}, "nothing"},
        {"points too close do not count", crowded, "nothing"},
        {"points just far enough do", {{0, 0}, {0, 0.154}, {0, 0.16}}, "lineUp"},
        {"no axis dominates", {{0, 0}, {0.1, 0.135}}, "nothing"},
        {"one does", {{0, 0}, {0.1, 0.1351}}, "lineUp"},
        {"the other does", {{0, 0}, {-0.1351, 0.1}}, "lineLeft"},
        {"as bent as allowed", {{0, 0}, {0, 0.184}, {0, 0.168}}, "lineUp"},  // chord 0.168 of 0.2
        {"too bent", {{0, 0}, {0, 0.1841}, {0, 0.168}}, "nothing"},
        {"no points", {}, "nothing"},
    });
}

TEST(AnchorDrawPatternClassifier, FindsCircles) {
    const auto endingAt = [](double y) {
        Path path = around(0.2, 0.2);
        path.back() = {0, y};
        return path;
    };
    Path clockwise = around(0.2, 0.2);
    std::reverse(clockwise.begin(), clockwise.end());
    Path eight = around(0.2, 0.2);
    eight.erase(eight.end() - 2);
    Path seven = eight;
    seven.erase(seven.begin() + 3);
    expectPatterns({
        {"clockwise", clockwise, "circleClockwise"},
        {"smallest", around(0.11, 0.11), "circleCounterclockwise"},
        {"too small", around(0.1099, 0.12), "nothing"},
        {"as long as allowed", around(0.209, 0.11), "circleCounterclockwise"},
        {"too long", around(0.2091, 0.11), "nothing"},
        {"as open as allowed", endingAt(0.13), "circleCounterclockwise"},
        {"too open", endingAt(0.1301), "nothing"},
        {"eight points", eight, "circleCounterclockwise"},
        {"seven points", seven, "nothing"},
        {"an area of 0", strokes({{0.3, 0.3}, {-0.3, -0.3}}), "circleCounterclockwise"},
    });
}

TEST(AnchorDrawPatternClassifier, FindsStrokesInOneDirectionOnly) {
    const Point down{0, -0.1}, right{0.1, 0}, upRight{0.07, 0.07}, downRight{0.07, -0.07};
    expectPatterns({
        {"L", strokes({down, right}), "lShape"},
        {"L from its other end", strokes({{-0.1, 0}, {0, 0.1}}), "nothing"},
        {"L upside down", strokes({{0, 0.1}, right}), "nothing"},
        {"L with short strokes", strokes({{0, -0.0751}, {0.1, 0}}, 20), "lShape"},
        {"L with a stroke too short", strokes({{0, -0.12}, {0.06, 0}}, 20), "nothing"},
        {"L with a bent stroke", strokes({{-0.05, -0.05}, {0.05, -0.05}, right}), "nothing"},
        {"V", strokes({{0.1, -0.1}, {0.1, 0.1}}), "vShape"},
        {"roof", strokes({{0.1, 0.1}, {0.1, -0.1}}), "nothing"},
        {"V of four points", {{0, 0}, {0.05, -0.05}, {0.1, -0.1}, {0.2, 0}}, "nothing"},
        {"V of five points", strokes({{0.1, -0.1}, {0.1, 0.1}}, 2), "vShape"},
        {"zigzag", zigzag(0.07), "zigzag"},
        {"zigzag upward first", strokes({upRight, downRight, upRight}), "zigzag"},
        {"zigzag to the left", zigzag(-0.07), "nothing"},
        {"zigzag of short strokes", zigzag(0.039, 4), "zigzag"},
        {"zigzag of strokes too short", zigzag(0.0388, 4), "nothing"},
        {"zigzag of five points", {{0, 0}, {0.07, -0.07}, {0.14, 0}, {0.18, -0.04}, {0.21, -0.07}}, "zigzag"},
    });
}

TEST(AnchorDrawPatternClassifier, TakesAnyCoordinates) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    for (const std::size_t index : {0U, 7U, 24U})
        for (const Point bad : {Point{kInfinity, kInfinity}, {-kInfinity, 0}, {kNaN, kInfinity}, {kNaN, kNaN}}) {
            Path path = strokes({{0.1, -0.1}, {0.1, 0.1}});
            path[index] = bad;
            const bool isLeftOut = index > 0 && std::isnan(bad.x) && std::isnan(bad.y);
            EXPECT_EQ(patternOf(path), isLeftOut ? "vShape" : "nothing") << bad.x << " at " << index;
        }
}

}  // namespace
}  // namespace kinesta::testing
