#include "rules/GestureQualifiers.h"

#include <array>

namespace kinesta {

template <>
std::span<const EnumRow<PhysicalClickPressure>> enumTable() {
    using enum PhysicalClickPressure;
    static constexpr std::array<EnumRow<PhysicalClickPressure>, 2> kTable{{
        {soft, "soft", "Soft click (stage 1)"},
        {force, "force", "Force Click (stage 2)"},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<TipTapDirection>> enumTable() {
    using enum TipTapDirection;
    static constexpr std::array<EnumRow<TipTapDirection>, 2> kTable{{
        {left, "left", "Left"},
        {right, "right", "Right"},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<EdgeSlideSide>> enumTable() {
    using enum EdgeSlideSide;
    static constexpr std::array<EnumRow<EdgeSlideSide>, 3> kTable{{
        {left, "left", "Left"},
        {right, "right", "Right"},
        {both, "both", "Both"},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<AnchorCorner>> enumTable() {
    using enum AnchorCorner;
    static constexpr std::array<EnumRow<AnchorCorner>, 4> kTable{{
        {topLeft, "topLeft", "Top left"},
        {topRight, "topRight", "Top right"},
        {bottomLeft, "bottomLeft", "Bottom left"},
        {bottomRight, "bottomRight", "Bottom right"},
    }};
    return kTable;
}

template <>
std::span<const EnumRow<DrawPattern>> enumTable() {
    using enum DrawPattern;
    static constexpr std::array<EnumRow<DrawPattern>, 9> kTable{{
        {lineUp, "lineUp", "Line up"},
        {lineDown, "lineDown", "Line down"},
        {lineLeft, "lineLeft", "Line left"},
        {lineRight, "lineRight", "Line right"},
        {lShape, "lShape", "L — down, then right"},
        {vShape, "vShape", "V — left to right"},
        {zigzag, "zigzag", "Zigzag — left to right"},
        {circleClockwise, "circleClockwise", "Clockwise circle"},
        {circleCounterclockwise, "circleCounterclockwise", "Counterclockwise circle"},
    }};
    return kTable;
}

}  // namespace kinesta
