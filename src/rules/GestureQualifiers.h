#pragma once

#include "support/EnumTable.h"

namespace kinesta {

/// How deep a physical click went. "Any pressure" is the absence of a value.
enum class PhysicalClickPressure { soft, force };

/// The side of the resting finger on which the second finger taps.
enum class TipTapDirection { left, right };

/// The edge region of a vertical slide. Detected slides are `left` or `right`; `both` is for rules.
enum class EdgeSlideSide { left, right, both };

/// The corner in which the first finger rests while the second draws.
enum class AnchorCorner { topLeft, topRight, bottomLeft, bottomRight };

/// The figure that the second finger draws.
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

/// Whether some slide is on both sides' ground.
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
