#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/GestureAction.h"
#include "rules/GestureKind.h"
#include "rules/Uuid.h"

namespace kinesta {

/// One gesture bound to one action. A default-made rule is blank but for its identity, which is all zero.
struct GestureRule {
    Uuid id;
    std::string name;
    bool isEnabled = false;
    /// Number of fingers, for the gestures that use one.
    std::optional<std::int64_t> fingerCount;
    GestureKind gesture = GestureKind::unconfigured;
    std::optional<EdgeSlideSide> edgeSlideSide;
    std::optional<AnchorCorner> anchorCorner;
    std::optional<DrawPattern> drawPattern;
    GestureAction action;
    std::optional<bool> showsActionCue;

    /// The rule that a fresh installation starts with: a three-finger tap is a middle click. The same identity for
    /// the whole run.
    static const GestureRule& recommendedDefault();

    EdgeSlideSide resolvedEdgeSlideSide() const { return edgeSlideSide.value_or(EdgeSlideSide::both); }
    bool shouldShowActionCue() const { return showsActionCue.value_or(true); }

    /// What the cue says for this rule: the action's own label, else the rule's name, else nothing.
    std::optional<std::string> resolvedVisualCueMessage() const;

    /// Whether gesture and action are complete, so that the rule may be enabled.
    bool isReady() const;

    friend bool operator==(const GestureRule&, const GestureRule&) = default;
};

}  // namespace kinesta
