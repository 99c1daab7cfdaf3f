#pragma once

#include <cstdint>
#include <optional>

#include "rules/GestureQualifiers.h"

namespace kinesta {

/// The gestures that recognizers report and rules are bound to. The finger count is a separate field.
enum class GestureKind {
    unconfigured,
    singleTap,
    doubleTap,
    tripleTap,
    singleClick,
    singleSoftClick,
    singleForceClick,
    doubleClick,
    doubleSoftClick,
    doubleForceClick,
    tripleClick,
    tripleSoftClick,
    tripleForceClick,
    tipTapLeft,
    doubleTipTapLeft,
    tripleTipTapLeft,
    tipTapRight,
    doubleTipTapRight,
    tripleTipTapRight,
    edgeSlide,
    anchorDraw,
};

template <>
std::span<const EnumRow<GestureKind>> enumTable();

/// Whether rules for this gesture have a finger count: taps, physical clicks and the edge slide.
bool usesFingerCount(GestureKind kind);

/// False only for `unconfigured`.
bool isConfigured(GestureKind kind);

bool isPhysicalClick(GestureKind kind);

/// 1, 2 or 3 for a physical click. Otherwise empty.
std::optional<int> physicalClickCount(GestureKind kind);

/// 1, 2 or 3 for a tap, click or tip-tap. Otherwise empty.
std::optional<int> repetitionCount(GestureKind kind);

/// The pressure of a click. Empty for "any pressure" and for other gestures.
std::optional<PhysicalClickPressure> physicalClickPressure(GestureKind kind);

/// The gesture with 1 to 3 repetitions. Empty for any other count.
std::optional<GestureKind> tapGesture(std::int64_t tapCount);
std::optional<GestureKind> physicalClickGesture(std::int64_t physicalClickCount,
                                                std::optional<PhysicalClickPressure> pressure);
std::optional<GestureKind> tipTapGesture(std::int64_t tipTapCount, TipTapDirection direction);

/// Whether a rule bound to `rule` fires for `detected`. An any-pressure click also matches the soft and the Force Click
/// of its count, but not the reverse.
bool matches(GestureKind rule, GestureKind detected);

}  // namespace kinesta
