#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/GestureAction.h"
#include "rules/GestureKind.h"
#include "rules/Uuid.h"

namespace kinesta {

/// One gesture bound to one action. Default-constructed, it is blank and has an all-zero id.
struct GestureRule {
    Uuid id;
    std::string name;
    bool isEnabled = false;
    /// For gestures that use a finger count.
    std::optional<std::int64_t> fingerCount;
    GestureKind gesture = GestureKind::unconfigured;
    std::optional<EdgeSlideSide> edgeSlideSide;
    std::optional<AnchorCorner> anchorCorner;
    std::optional<DrawPattern> drawPattern;
    GestureAction action;
    std::optional<bool> showsActionCue;

    /// The rule of a new installation: a three-finger tap is a middle click. Keeps its id until the program ends.
    static const GestureRule& recommendedDefault();

    EdgeSlideSide resolvedEdgeSlideSide() const { return edgeSlideSide.value_or(EdgeSlideSide::both); }
    bool shouldShowActionCue() const { return showsActionCue.value_or(true); }

    /// The cue text: the action's custom label, else the rule's name, else nothing.
    std::optional<std::string> resolvedVisualCueMessage() const;

    /// Whether gesture and action are complete. Only then may the rule be enabled.
    bool isReady() const;

    friend bool operator==(const GestureRule&, const GestureRule&) = default;
};

}  // namespace kinesta
