#pragma once

#include "support/EnumTable.h"

namespace kinesta {

/// The pressure of a physical click. "Any pressure" is an empty optional.
enum class PhysicalClickPressure { soft, force };

/// The side of the resting finger on which the second finger taps.
enum class TipTapDirection { left, right };

/// The edge region of a vertical slide. Detected slides are `left` or `right`; `both` is for rules.
enum class EdgeSlideSide { left, right, both };

/// The corner in which the first finger rests while the second draws.
enum class AnchorCorner { topLeft, topRight, bottomLeft, bottomRight };

/// The pattern that the second finger draws.
enum class DrawPattern {
    lineUp,
    lineDown,
    lineLeft,
    lineRight,
    lShape,
    vShape,
    zigzag,
    circleClockwise,
    circleCounterclockwise,
};

/// Whether a rule for side `rule` takes a slide detected on side `detected`.
inline bool matches(EdgeSlideSide rule, EdgeSlideSide detected) {
    return rule == EdgeSlideSide::both || rule == detected;
}

/// Whether a slide can match both sides.
inline bool overlaps(EdgeSlideSide a, EdgeSlideSide b) {
    return a == EdgeSlideSide::both || b == EdgeSlideSide::both || a == b;
}

template <>
std::span<const EnumRow<PhysicalClickPressure>> enumTable();
template <>
std::span<const EnumRow<TipTapDirection>> enumTable();
template <>
std::span<const EnumRow<EdgeSlideSide>> enumTable();
template <>
std::span<const EnumRow<AnchorCorner>> enumTable();
template <>
std::span<const EnumRow<DrawPattern>> enumTable();

}  // namespace kinesta
