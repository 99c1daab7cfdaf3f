#include <benchmark/benchmark.h>

#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "recognition/AnchorDrawPatternClassifier.h"

namespace kinesta {
namespace {

/// `count` points of a curve, evenly spaced from 0 to 1.
std::vector<Point> path(std::int64_t count, const std::function<Point(double)>& curve) {
    std::vector<Point> points;
    for (std::int64_t i = 0; i < count; ++i)
        points.push_back(curve(static_cast<double>(i) / static_cast<double>(count - 1)));
    return points;
}

void classify(benchmark::State& state, const std::function<Point(double)>& curve) {
    const std::vector<Point> points = path(state.range(0), curve);
    for (auto _ : state)
        benchmark::DoNotOptimize(AnchorDrawPatternClassifier::classify(points));
}

// Every shape is so large that the classifier keeps all of 300 points.

void circle(benchmark::State& state) {
    classify(state, [](double t) {
        const double angle = 2 * std::numbers::pi * t;
        return Point{0.5 + 0.4 * std::cos(angle), 0.5 + 0.4 * std::sin(angle)};
    });
}

/// Matches the outer strokes of a zigzag wherever it is split, and the middle one nowhere.
void diagonal(benchmark::State& state) {
    classify(state, [](double t) { return Point{1.8 * t, -1.5 * t}; });
}

void bow(benchmark::State& state) {
    classify(state, [](double t) { return Point{1.6 * t, -1.6 * t * t}; });
}

void zigzag(benchmark::State& state) {
    classify(state, [](double t) { return Point{2 * t, std::abs(std::fmod(3 * t, 2.0) - 1) * 0.7}; });
}

/// Matches no pattern, and no check ends early.
void wave(benchmark::State& state) {
    classify(state, [](double t) { return Point{1.7 * t, -1.5 * t + 0.1 * std::sin(40 * t)}; });
}

BENCHMARK(circle)->Arg(64)->Arg(300);
BENCHMARK(diagonal)->Arg(64)->Arg(300);
BENCHMARK(bow)->Arg(64)->Arg(300);
BENCHMARK(zigzag)->Arg(64)->Arg(300);
BENCHMARK(wave)->Arg(64)->Arg(300);

}  // namespace
}  // namespace kinesta
