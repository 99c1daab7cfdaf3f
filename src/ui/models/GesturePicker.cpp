#include "ui/models/GesturePicker.h"

#include <algorithm>
#include <array>

#include "support/Translation.h"
#include "ui/models/RuleEditing.h"

namespace kinesta {
namespace {

constexpr int kFewestFingers = 2;
constexpr int kMostFingers = 5;

template <typename E>
std::vector<PickerChoice> choicesAmong() {
    std::vector<PickerChoice> choices;
    for (const E value : allCases<E>())
        choices.push_back({static_cast<int>(value), translated(title(value))});
    return choices;
}

template <typename E>
std::optional<int> asValue(std::optional<E> choice) {
    return choice ? std::optional(static_cast<int>(*choice)) : std::nullopt;
}

}  // namespace

template <>
std::span<const EnumRow<GesturePicker>> enumTable() {
    using enum GesturePicker;
    static constexpr std::array<EnumRow<GesturePicker>, 5> kTable{{
        {repetition, "repetition", TRANSLATABLE("Repetition")},
        {fingers, "fingers", TRANSLATABLE("Fingers")},
        {side, "side", TRANSLATABLE("Side")},
        {corner, "corner", TRANSLATABLE("Corner")},
        {pattern, "pattern", TRANSLATABLE("Pattern")},
    }};
    return kTable;
}

std::vector<GesturePicker> pickersOf(GestureTypeChoice type) {
    using enum GesturePicker;
    switch (type) {
        case GestureTypeChoice::unconfigured:
            break;
        case GestureTypeChoice::tap:
        case GestureTypeChoice::physicalClick:
        case GestureTypeChoice::softClick:
        case GestureTypeChoice::forceClick:
            return {repetition, fingers};
        case GestureTypeChoice::tipTapLeft:
        case GestureTypeChoice::tipTapRight:
            return {repetition};
        case GestureTypeChoice::edgeSlide:
            return {fingers, side};
        case GestureTypeChoice::anchorDraw:
            return {corner, pattern};
    }
    return {};
}

std::vector<PickerChoice> choicesOf(GesturePicker picker) {
    switch (picker) {
        case GesturePicker::repetition:
            return {{1, translated("Single")}, {2, translated("Double")}, {3, translated("Triple")}};
        case GesturePicker::side:
            return choicesAmong<EdgeSlideSide>();
        case GesturePicker::corner:
            return choicesAmong<AnchorCorner>();
        case GesturePicker::pattern:
            return choicesAmong<DrawPattern>();
        case GesturePicker::fingers:
            break;
    }
    std::vector<PickerChoice> counts;
    for (int count = kFewestFingers; count <= kMostFingers; ++count)
        counts.push_back({count, std::to_string(count)});
    return counts;
}

std::optional<int> pickedValue(const GestureRule& rule, GesturePicker picker) {
    switch (picker) {
        case GesturePicker::repetition:
            return repetitionCount(rule.gesture);
        case GesturePicker::fingers:
            // An imported rule may have any number.
            if (!rule.fingerCount || *rule.fingerCount < kFewestFingers || *rule.fingerCount > kMostFingers)
                return std::nullopt;
            return static_cast<int>(*rule.fingerCount);
        case GesturePicker::side:
            return static_cast<int>(rule.resolvedEdgeSlideSide());
        case GesturePicker::corner:
            return asValue(rule.anchorCorner);
        case GesturePicker::pattern:
            return asValue(rule.drawPattern);
    }
    return std::nullopt;
}

void pick(GestureRule& rule, GesturePicker picker, int value) {
    const GestureTypeChoice type = gestureTypeChoice(rule.gesture);
    if (std::ranges::count(pickersOf(type), picker) == 0)
        return;
    switch (picker) {
        case GesturePicker::repetition:
            return changeGesture(rule, gestureKind(type, value));
        case GesturePicker::fingers:
            rule.fingerCount = value;
            return;
        case GesturePicker::side:
            rule.edgeSlideSide = static_cast<EdgeSlideSide>(value);
            return;
        case GesturePicker::corner:
            rule.anchorCorner = static_cast<AnchorCorner>(value);
            return;
        case GesturePicker::pattern:
            rule.drawPattern = static_cast<DrawPattern>(value);
            return;
    }
}

GestureRule completed(GestureRule rule) {
    if (!pickedValue(rule, GesturePicker::fingers))
        pick(rule, GesturePicker::fingers, rule.gesture == GestureKind::edgeSlide ? 2 : 3);
    if (!rule.anchorCorner)
        pick(rule, GesturePicker::corner, static_cast<int>(AnchorCorner::topLeft));
    if (!rule.drawPattern)
        pick(rule, GesturePicker::pattern, static_cast<int>(DrawPattern::vShape));
    return rule;
}

GestureRule exampleOf(GestureTypeChoice type, GestureRule rule) {
    // One edge is easier to understand than both.
    if (!rule.edgeSlideSide)
        rule.edgeSlideSide = EdgeSlideSide::left;
    changeGesture(rule, gestureKind(type, repetitionCount(rule.gesture).value_or(1)));
    return completed(std::move(rule));
}

}  // namespace kinesta
