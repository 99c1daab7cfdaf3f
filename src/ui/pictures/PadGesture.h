#pragma once

#include <optional>
#include <vector>

#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"
#include "support/Point.h"

namespace kinesta {

/// A gesture as it is drawn on a pad. What has not been chosen yet is not drawn.
struct PadGesture {
    GestureKind kind = GestureKind::unconfigured;
    /// 2…5; 0 if it has not been chosen.
    int fingers = 0;
    EdgeSlideSide side = EdgeSlideSide::both;
    std::optional<AnchorCorner> corner = std::nullopt;
    std::optional<DrawPattern> pattern = std::nullopt;

    static PadGesture of(const GestureRule& rule);
    static PadGesture of(const DetectedGesture& detected);

    bool isTipTap() const;
    bool isTap() const;
    /// A click that may be soft or deep.
    bool isAnyClick() const;
    int repetitions() const { return repetitionCount(kind).value_or(1); }

    friend bool operator==(const PadGesture&, const PadGesture&) = default;
};

/// Where things stand on the pad: 0…1 on both axes, x to the right, y upward.
namespace PadGeometry {

/// The fingers of a tap, click or slide at rest, or the one that taps or draws.
std::vector<Point> actingFingers(const PadGesture& gesture);
/// The finger that rests while another one acts.
std::optional<Point> restingFinger(const PadGesture& gesture);
/// Half the distance that the fingers of a slide travel, so that none leaves the pad.
double slideReach(int fingers);

/// The corners of the pattern, or points along its curve, about (0, 0), at most 1 away on each axis.
const std::vector<Point>& pattern(DrawPattern pattern);
/// The begin of the gesture's pattern where it stands on the pad: `part` of its length, 0…1. Empty without a pattern.
std::vector<Point> drawnPattern(const PadGesture& gesture, double part);
/// The pad is this much as high as it is wide.
inline constexpr double padHeight = 0.75;

bool isLeft(AnchorCorner corner);
bool isTop(AnchorCorner corner);

}  // namespace PadGeometry

}  // namespace kinesta
