#pragma once

#include <cstdint>
#include <optional>

#include "rules/GestureKind.h"

namespace kinesta {

/// The entries of the editor's gesture picker. The repetition is chosen separately.
enum class GestureTypeChoice {
    unconfigured,
    tap,
    physicalClick,
    softClick,
    forceClick,
    tipTapLeft,
    tipTapRight,
    edgeSlide,
    anchorDraw,
};

template <>
std::span<const EnumRow<GestureTypeChoice>> enumTable();

/// The gesture for a picker entry and a repetition. The single form if the repetition is not 1 to 3.
GestureKind gestureKind(GestureTypeChoice choice, std::int64_t repetitions);

/// The picker entry of a gesture.
GestureTypeChoice gestureTypeChoice(GestureKind kind);

}  // namespace kinesta
