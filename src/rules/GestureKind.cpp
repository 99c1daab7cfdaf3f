#include "rules/GestureKind.h"

#include <array>
#include <cstddef>

#include "support/Translation.h"

namespace kinesta {
namespace {

enum class Family { none, tap, click, tipTap, edgeSlide, anchorDraw };

struct Facts {
    Family family = Family::none;
    int repetitions = 0;  // 0: does not repeat
    std::optional<PhysicalClickPressure> pressure;
};

// By case, in declaration order.
constexpr std::array<Facts, 21> kFacts{{
    {},
    {Family::tap, 1, {}},
    {Family::tap, 2, {}},
    {Family::tap, 3, {}},
    {Family::click, 1, {}},
    {Family::click, 1, PhysicalClickPressure::soft},
    {Family::click, 1, PhysicalClickPressure::force},
    {Family::click, 2, {}},
    {Family::click, 2, PhysicalClickPressure::soft},
    {Family::click, 2, PhysicalClickPressure::force},
    {Family::click, 3, {}},
    {Family::click, 3, PhysicalClickPressure::soft},
    {Family::click, 3, PhysicalClickPressure::force},
    {Family::tipTap, 1, {}},
    {Family::tipTap, 2, {}},
    {Family::tipTap, 3, {}},
    {Family::tipTap, 1, {}},
    {Family::tipTap, 2, {}},
    {Family::tipTap, 3, {}},
    {Family::edgeSlide, 0, {}},
    {Family::anchorDraw, 0, {}},
}};

const Facts& facts(GestureKind kind) { return kFacts[static_cast<std::size_t>(kind)]; }

std::optional<GestureKind> nth(const std::array<GestureKind, 3>& forms, std::int64_t count) {
    if (count < 1 || count > 3)
        return std::nullopt;
    return forms[static_cast<std::size_t>(count - 1)];
}

}  // namespace

template <>
std::span<const EnumRow<GestureKind>> enumTable() {
    using enum GestureKind;
    // The single tip-taps have no "single" in the raw value. Stored rules contain these strings, so they stay.
    static constexpr std::array<EnumRow<GestureKind>, 21> kTable{{
        {unconfigured, "unconfigured", TRANSLATABLE("Choose a gesture…")},
        {singleTap, "singleTap", TRANSLATABLE("Single tap")},
        {doubleTap, "doubleTap", TRANSLATABLE("Double tap")},
        {tripleTap, "tripleTap", TRANSLATABLE("Triple tap")},
        {singleClick, "singleClick", TRANSLATABLE("Single physical click (any pressure)")},
        {singleSoftClick, "singleSoftClick", TRANSLATABLE("Single soft click (stage 1)")},
        {singleForceClick, "singleForceClick", TRANSLATABLE("Single Force Click (stage 2)")},
        {doubleClick, "doubleClick", TRANSLATABLE("Double physical click (any pressure)")},
        {doubleSoftClick, "doubleSoftClick", TRANSLATABLE("Double soft click (stage 1)")},
        {doubleForceClick, "doubleForceClick", TRANSLATABLE("Double Force Click (stage 2)")},
        {tripleClick, "tripleClick", TRANSLATABLE("Triple physical click (any pressure)")},
        {tripleSoftClick, "tripleSoftClick", TRANSLATABLE("Triple soft click (stage 1)")},
        {tripleForceClick, "tripleForceClick", TRANSLATABLE("Triple Force Click (stage 2)")},
        {tipTapLeft, "tipTapLeft", TRANSLATABLE("Single tip-tap left")},
        {doubleTipTapLeft, "doubleTipTapLeft", TRANSLATABLE("Double tip-tap left")},
        {tripleTipTapLeft, "tripleTipTapLeft", TRANSLATABLE("Triple tip-tap left")},
        {tipTapRight, "tipTapRight", TRANSLATABLE("Single tip-tap right")},
        {doubleTipTapRight, "doubleTipTapRight", TRANSLATABLE("Double tip-tap right")},
        {tripleTipTapRight, "tripleTipTapRight", TRANSLATABLE("Triple tip-tap right")},
        {edgeSlide, "edgeSlide", TRANSLATABLE("Vertical edge slide")},
        {anchorDraw, "anchorDraw", TRANSLATABLE("Corner hold and draw")},
    }};
    return kTable;
}

bool usesFingerCount(GestureKind kind) {
    const Family family = facts(kind).family;
    return family == Family::tap || family == Family::click || family == Family::edgeSlide;
}

bool isConfigured(GestureKind kind) { return kind != GestureKind::unconfigured; }

bool isPhysicalClick(GestureKind kind) { return facts(kind).family == Family::click; }

std::optional<int> physicalClickCount(GestureKind kind) {
    return isPhysicalClick(kind) ? repetitionCount(kind) : std::nullopt;
}

std::optional<int> repetitionCount(GestureKind kind) {
    const int repetitions = facts(kind).repetitions;
    return repetitions == 0 ? std::nullopt : std::optional<int>(repetitions);
}

std::optional<PhysicalClickPressure> physicalClickPressure(GestureKind kind) { return facts(kind).pressure; }

std::optional<GestureKind> tapGesture(std::int64_t tapCount) {
    using enum GestureKind;
    return nth({singleTap, doubleTap, tripleTap}, tapCount);
}

std::optional<GestureKind> physicalClickGesture(std::int64_t physicalClickCount,
                                                std::optional<PhysicalClickPressure> pressure) {
    using enum GestureKind;
    if (pressure == PhysicalClickPressure::force)
        return nth({singleForceClick, doubleForceClick, tripleForceClick}, physicalClickCount);
    if (pressure == PhysicalClickPressure::soft)
        return nth({singleSoftClick, doubleSoftClick, tripleSoftClick}, physicalClickCount);
    return nth({singleClick, doubleClick, tripleClick}, physicalClickCount);
}

std::optional<GestureKind> tipTapGesture(std::int64_t tipTapCount, TipTapDirection direction) {
    using enum GestureKind;
    if (direction == TipTapDirection::left)
        return nth({tipTapLeft, doubleTipTapLeft, tripleTipTapLeft}, tipTapCount);
    return nth({tipTapRight, doubleTipTapRight, tripleTipTapRight}, tipTapCount);
}

bool matches(GestureKind rule, GestureKind detected) {
    if (rule == detected)
        return true;
    const Facts& wanted = facts(rule);
    const Facts& actual = facts(detected);
    return wanted.family == Family::click && actual.family == Family::click && !wanted.pressure &&
           wanted.repetitions == actual.repetitions;
}

}  // namespace kinesta
