#pragma once

#include <optional>
#include <span>

#include "rules/GestureQualifiers.h"
#include "support/Point.h"

namespace kinesta {

/// Classifies the path of a drawing finger. Pure functions.
struct AnchorDrawPatternClassifier {
    /// A shorter path is no pattern; normalized units.
    static constexpr double minimumPathLength = 0.16;

    /// The pattern of `path` (normalized units, in drawing order), or nothing. The tests overlap: circles come before
    /// lines, lines before corners, and the first pattern that fits wins.
    static std::optional<DrawPattern> classify(std::span<const Point> path);
};

}  // namespace kinesta
