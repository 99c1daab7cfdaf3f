#pragma once

#include <cstdint>
#include <optional>

#include "rules/GestureKind.h"

namespace kinesta {

/// The entries of the editor's gesture picker; the number of repetitions is chosen beside it.
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

/// The gesture of a picker entry and a number of repetitions; the single form when the number is not 1 to 3.
GestureKind gestureKind(GestureTypeChoice choice, std::int64_t repetitions);

/// The picker entry that stands for a gesture.
GestureTypeChoice gestureTypeChoice(GestureKind kind);

}  // namespace kinesta
