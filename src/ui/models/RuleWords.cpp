#include "ui/models/RuleWords.h"

#include <algorithm>
#include <string_view>

#include "rules/ActionTarget.h"
#include "rules/GestureTypeChoice.h"
#include "support/Text.h"

namespace kinesta {
namespace {

std::string repetitionWord(GestureKind gesture) {
    const int count = repetitionCount(gesture).value_or(1);
    return count == 1 ? "" : count == 2 ? "double " : "triple ";
}

std::string withFingers(const GestureRule& rule, const std::string& text) {
    return (rule.fingerCount ? std::to_string(*rule.fingerCount) : std::string("…")) + "-finger " + text;
}

/// "L", "zigzag", "line up": the title without how it is drawn.
std::string shortPattern(DrawPattern pattern) {
    const std::string_view text = title(pattern);
    const std::string name(text.substr(0, text.find(" — ")));
    return name.size() == 1 ? name : lowerCased(name);
}

std::string slideSide(EdgeSlideSide side) {
    return side == EdgeSlideSide::both ? "both sides" : lowerCased(title(side));
}

std::string onOneLine(std::string_view original) {
    std::string text(original);
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, ' ');
    return text;
}

std::string_view missing(const GestureRule& rule) {
    const GestureAction& action = rule.action;
    if (!isConfigured(rule.gesture))
        return action.kind == ActionKind::unconfigured ? "Choose a gesture and an action" : "Choose a gesture";
    if (usesFingerCount(rule.gesture) && !rule.fingerCount)
        return "Choose how many fingers";
    if (rule.gesture == GestureKind::anchorDraw && !rule.anchorCorner)
        return "Choose a corner";
    if (rule.gesture == GestureKind::anchorDraw && !rule.drawPattern)
        return "Choose a pattern";
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            return "Record a shortcut";
        case ActionKind::openURL:
            return "Enter an address";
        case ActionKind::openFileOrFolder:
            return "Choose a file or folder";
        case ActionKind::launchApplication:
            return "Choose an application";
        case ActionKind::shellCommand:
            return trimmed(action.value).empty() ? "Enter a command" : "Confirm the command";
        default:
            return "Choose an action";
    }
}

}  // namespace

std::string capitalized(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string displayName(const GestureRule& rule) { return rule.name.empty() ? "Untitled gesture" : rule.name; }

std::string shortGesture(const GestureRule& rule) {
    const std::string repetition = repetitionWord(rule.gesture);
    switch (gestureTypeChoice(rule.gesture)) {
        case GestureTypeChoice::unconfigured:
            break;
        case GestureTypeChoice::tap:
            return withFingers(rule, repetition + "tap");
        case GestureTypeChoice::physicalClick:
            return withFingers(rule, repetition + "click");
        case GestureTypeChoice::softClick:
            return withFingers(rule, repetition + "soft click");
        case GestureTypeChoice::forceClick:
            return withFingers(rule, repetition + "Force Click");
        case GestureTypeChoice::tipTapLeft:
            return capitalized(repetition + "tip-tap left");
        case GestureTypeChoice::tipTapRight:
            return capitalized(repetition + "tip-tap right");
        case GestureTypeChoice::edgeSlide:
            return withFingers(rule, "slide, " + slideSide(rule.resolvedEdgeSlideSide()));
        case GestureTypeChoice::anchorDraw:
            return (rule.anchorCorner ? std::string(title(*rule.anchorCorner)) : "…") + ", " +
                   (rule.drawPattern ? shortPattern(*rule.drawPattern) : "…");
    }
    return "No gesture";
}

std::string shortAction(const GestureAction& action) {
    const std::string text = action.summary();
    switch (action.kind) {
        case ActionKind::openURL:
            return onOneLine(hostOf(text));
        case ActionKind::openFileOrFolder:
            return onOneLine(lastPart(text));
        case ActionKind::launchApplication:
            return onOneLine(applicationName(text));
        case ActionKind::adjustVolume:
            return "Volume";
        default:
            return onOneLine(text);
    }
}

std::optional<std::string> whatIsMissing(const GestureRule& rule) {
    if (rule.isReady())
        return std::nullopt;
    return std::string(missing(rule)) + " to switch this rule on.";
}

}  // namespace kinesta
