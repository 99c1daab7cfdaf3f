#include "rules/GestureTypeChoice.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {

template <>
std::span<const EnumRow<GestureTypeChoice>> enumTable() {
    using enum GestureTypeChoice;
    static constexpr std::array<EnumRow<GestureTypeChoice>, 9> kTable{{
        {unconfigured, "unconfigured", TRANSLATABLE("Choose a type…")},
        {tap, "tap", TRANSLATABLE("Tap")},
        {physicalClick, "physicalClick", TRANSLATABLE("Physical click (any pressure)")},
        {softClick, "softClick", TRANSLATABLE("Soft click (stage 1)")},
        {forceClick, "forceClick", TRANSLATABLE("Force Click (stage 2)")},
        {tipTapLeft, "tipTapLeft", TRANSLATABLE("Tip-tap left")},
        {tipTapRight, "tipTapRight", TRANSLATABLE("Tip-tap right")},
        {edgeSlide, "edgeSlide", TRANSLATABLE("Vertical edge slide")},
        {anchorDraw, "anchorDraw", TRANSLATABLE("Corner hold and draw (prototype)")},
    }};
    return kTable;
}

GestureKind gestureKind(GestureTypeChoice choice, std::int64_t repetitions) {
    const std::int64_t count = repetitions >= 1 && repetitions <= 3 ? repetitions : 1;
    std::optional<GestureKind> kind;
    switch (choice) {
        case GestureTypeChoice::unconfigured:
            break;
        case GestureTypeChoice::tap:
            kind = tapGesture(count);
            break;
        case GestureTypeChoice::physicalClick:
            kind = physicalClickGesture(count, std::nullopt);
            break;
        case GestureTypeChoice::softClick:
            kind = physicalClickGesture(count, PhysicalClickPressure::soft);
            break;
        case GestureTypeChoice::forceClick:
            kind = physicalClickGesture(count, PhysicalClickPressure::force);
            break;
        case GestureTypeChoice::tipTapLeft:
            kind = tipTapGesture(count, TipTapDirection::left);
            break;
        case GestureTypeChoice::tipTapRight:
            kind = tipTapGesture(count, TipTapDirection::right);
            break;
        case GestureTypeChoice::edgeSlide:
            kind = GestureKind::edgeSlide;
            break;
        case GestureTypeChoice::anchorDraw:
            kind = GestureKind::anchorDraw;
            break;
    }
    return kind.value_or(GestureKind::unconfigured);
}

GestureTypeChoice gestureTypeChoice(GestureKind kind) {
    for (const GestureTypeChoice choice : allCases<GestureTypeChoice>())
        if (gestureKind(choice, repetitionCount(kind).value_or(1)) == kind)
            return choice;
    return GestureTypeChoice::unconfigured;
}

}  // namespace kinesta
