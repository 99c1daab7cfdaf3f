#pragma once

#include <optional>
#include <string>
#include <vector>

#include "rules/GestureRule.h"
#include "rules/GestureTypeChoice.h"

namespace kinesta {

/// What there is to choose for a gesture besides its type.
enum class GesturePicker { repetition, fingers, side, corner, pattern };

template <>
std::span<const EnumRow<GesturePicker>> enumTable();

struct PickerChoice {
    int value = 0;
    /// "Double", "2", "Left", "Top left", "Line up".
    std::string title;
};

/// In the order in which they stand below each other.
std::vector<GesturePicker> pickersOf(GestureTypeChoice type);
std::vector<PickerChoice> choicesOf(GesturePicker picker);
/// What the rule has chosen there, if anything.
std::optional<int> pickedValue(const GestureRule& rule, GesturePicker picker);
/// Chooses a value. Nothing happens if the gesture of the rule has no such picker.
void pick(GestureRule& rule, GesturePicker picker, int value);

/// The rule with something chosen everywhere, so that its gesture can be performed.
GestureRule completed(GestureRule rule);
/// The rule with a gesture of this type, complete: an example of the type if the rule is blank.
GestureRule exampleOf(GestureTypeChoice type, GestureRule rule = {});

}  // namespace kinesta
