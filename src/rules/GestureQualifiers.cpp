#include "rules/GestureQualifiers.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {

template <>
std::span<const EnumRow<PhysicalClickPressure>> enumTable() {
    using enum PhysicalClickPressure;
    static constexpr std::array<EnumRow<PhysicalClickPressure>, 2> kTable{{
        {soft, "soft", TRANSLATABLE("Soft click (stage 1)")},
        {force, "force", TRANSLATABLE("Force Click (stage 2)")},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<TipTapDirection>> enumTable() {
    using enum TipTapDirection;
    static constexpr std::array<EnumRow<TipTapDirection>, 2> kTable{{
        {left, "left", TRANSLATABLE("Left")},
        {right, "right", TRANSLATABLE("Right")},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<EdgeSlideSide>> enumTable() {
    using enum EdgeSlideSide;
    static constexpr std::array<EnumRow<EdgeSlideSide>, 3> kTable{{
        {left, "left", TRANSLATABLE("Left")},
        {right, "right", TRANSLATABLE("Right")},
        {both, "both", TRANSLATABLE("Both")},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<AnchorCorner>> enumTable() {
    using enum AnchorCorner;
    static constexpr std::array<EnumRow<AnchorCorner>, 4> kTable{{
        {topLeft, "topLeft", TRANSLATABLE("Top left")},
        {topRight, "topRight", TRANSLATABLE("Top right")},
        {bottomLeft, "bottomLeft", TRANSLATABLE("Bottom left")},
        {bottomRight, "bottomRight", TRANSLATABLE("Bottom right")},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<DrawPattern>> enumTable() {
    using enum DrawPattern;
    static constexpr std::array<EnumRow<DrawPattern>, 9> kTable{{
        {lineUp, "lineUp", TRANSLATABLE("Line up")},
        {lineDown, "lineDown", TRANSLATABLE("Line down")},
        {lineLeft, "lineLeft", TRANSLATABLE("Line left")},
        {lineRight, "lineRight", TRANSLATABLE("Line right")},
        {lShape, "lShape", TRANSLATABLE("L — down, then right")},
        {vShape, "vShape", TRANSLATABLE("V — left to right")},
        {zigzag, "zigzag", TRANSLATABLE("Zigzag — left to right")},
        {circleClockwise, "circleClockwise", TRANSLATABLE("Clockwise circle")},
        {circleCounterclockwise, "circleCounterclockwise", TRANSLATABLE("Counterclockwise circle")},
    }};
    return kTable;
}

}  // namespace kinesta
