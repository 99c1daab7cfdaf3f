#pragma once

#include <cstdint>
#include <optional>

#include "rules/GestureQualifiers.h"

namespace kinesta {

/// What a rule can be bound to, and what the recognizers report. The finger count is a field of its own.
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

/// Whether a rule for this gesture also names a number of fingers: taps, physical clicks and the edge slide.
bool usesFingerCount(GestureKind kind);

/// False only for `unconfigured`.
bool isConfigured(GestureKind kind);

bool isPhysicalClick(GestureKind kind);

/// 1, 2 or 3 for a physical click, otherwise nothing.
std::optional<int> physicalClickCount(GestureKind kind);

/// 1, 2 or 3 for a tap, click or tip-tap, otherwise nothing.
std::optional<int> repetitionCount(GestureKind kind);

/// The pressure that a click asks for; nothing for "any pressure" and for everything that is no click.
std::optional<PhysicalClickPressure> physicalClickPressure(GestureKind kind);

/// The gesture of so many repetitions (1 to 3); nothing for any other count.
std::optional<GestureKind> tapGesture(std::int64_t tapCount);
std::optional<GestureKind> physicalClickGesture(std::int64_t physicalClickCount,
                                                std::optional<PhysicalClickPressure> pressure);
std::optional<GestureKind> tipTapGesture(std::int64_t tipTapCount, TipTapDirection direction);

/// Whether a rule bound to `rule` fires for `detected`. An any-pressure click takes the soft and the Force Click of
/// its count, never the other way round.
bool matches(GestureKind rule, GestureKind detected);

}  // namespace kinesta
