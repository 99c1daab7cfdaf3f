#pragma once

#include <optional>

#include "feedback/ActionCuePosition.h"
#include "feedback/Screens.h"

namespace kinesta {

/// Where the cue goes.
struct ActionCuePlacement {
    /// Between the cue and the edges of the work area, in logical points.
    static constexpr double margin = 28;

    /// The first screen with the pointer, else the main screen.
    static std::optional<Screen> screen(const Screens& screens);

    /// The lower left corner of the cue in a work area.
    static Point origin(ActionCuePosition position, const Rectangle& visibleFrame);
};

}  // namespace kinesta
