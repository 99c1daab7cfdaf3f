#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "rules/GestureRule.h"

namespace kinesta {

/// A recognized tap, physical click or tip-tap.
struct DetectedTap {
    std::int64_t fingerCount = 0;
    GestureKind gesture = GestureKind::unconfigured;

    friend bool operator==(const DetectedTap&, const DetectedTap&) = default;
};

/// A movement of a recognized edge slide. `steps` is positive upward and never 0.
struct DetectedEdgeSlide {
    std::int64_t fingerCount = 0;
    EdgeSlideSide side = EdgeSlideSide::left;
    std::int64_t steps = 0;

    friend bool operator==(const DetectedEdgeSlide&, const DetectedEdgeSlide&) = default;
};

/// A recognized corner hold-and-draw.
struct DetectedAnchorDraw {
    AnchorCorner corner = AnchorCorner::topLeft;
    DrawPattern pattern = DrawPattern::lineUp;

    friend bool operator==(const DetectedAnchorDraw&, const DetectedAnchorDraw&) = default;
};

using DetectedGesture = std::variant<DetectedTap, DetectedEdgeSlide, DetectedAnchorDraw>;

/// Whether shell-command rules may be selected.
enum class ShellCommands { forbidden, allowed };

/// The first rule in the list that runs for the gesture, or null. Points into `rules`.
const GestureRule* selectRule(std::span<const GestureRule> rules, const DetectedGesture& detected,
                              ShellCommands shellCommands);

}  // namespace kinesta
