#include "ui/models/RuleWords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "rules/ActionTarget.h"
#include "rules/GestureTypeChoice.h"
#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

/// Done once, twice, three times. %1: how many fingers.
using Repeated = std::array<std::string_view, 3>;

constexpr Repeated kTap{TRANSLATABLE("%1-finger tap"), TRANSLATABLE("%1-finger double tap"),
                        TRANSLATABLE("%1-finger triple tap")};
constexpr Repeated kClick{TRANSLATABLE("%1-finger click"), TRANSLATABLE("%1-finger double click"),
                          TRANSLATABLE("%1-finger triple click")};
constexpr Repeated kSoftClick{TRANSLATABLE("%1-finger soft click"), TRANSLATABLE("%1-finger double soft click"),
                              TRANSLATABLE("%1-finger triple soft click")};
constexpr Repeated kForceClick{TRANSLATABLE("%1-finger Force Click"), TRANSLATABLE("%1-finger double Force Click"),
                               TRANSLATABLE("%1-finger triple Force Click")};
constexpr Repeated kTipTapLeft{TRANSLATABLE("Tip-tap left"), TRANSLATABLE("Double tip-tap left"),
                               TRANSLATABLE("Triple tip-tap left")};
constexpr Repeated kTipTapRight{TRANSLATABLE("Tip-tap right"), TRANSLATABLE("Double tip-tap right"),
                                TRANSLATABLE("Triple tip-tap right")};
/// By side: left, right, both.
constexpr std::array<std::string_view, 3> kSlide{TRANSLATABLE("%1-finger slide, left"),
                                                 TRANSLATABLE("%1-finger slide, right"),
                                                 TRANSLATABLE("%1-finger slide, both sides")};
/// The titles of the patterns without how they are drawn.
constexpr std::array<std::string_view, 9> kPatterns{TRANSLATABLE("line up"),
                                                    TRANSLATABLE("line down"),
                                                    TRANSLATABLE("line left"),
                                                    TRANSLATABLE("line right"),
                                                    TRANSLATABLE("L"),
                                                    TRANSLATABLE("V"),
                                                    TRANSLATABLE("zigzag"),
                                                    TRANSLATABLE("clockwise circle"),
                                                    TRANSLATABLE("counterclockwise circle")};

/// Line ends outside ASCII: next line, line separator, paragraph separator.
constexpr std::array<std::string_view, 3> kLineEnds{"\u0085", "\u2028", "\u2029"};
/// The bytes at the beginning that cannot be seen, or that let words look other than they are: soft hyphen, zero-width
/// space, marks of direction, invisible operators. Joiners stay: emoji and many scripts need them.
std::size_t unseenBytes(std::string_view text) {
    if (text.starts_with("\u00AD"))
        return 2;
    if (text.size() < 3)
        return 0;
    const auto third = static_cast<unsigned char>(text[2]);
    const auto isBetween = [third](unsigned first, unsigned last) { return third >= first && third <= last; };
    const bool isUnseen = text.starts_with("\uFEFF") || text.starts_with("\u200B") ||
                          (text.starts_with("\xE2\x80") && (isBetween(0x8E, 0x8F) || isBetween(0xAA, 0xAE))) ||
                          (text.starts_with("\xE2\x81") && isBetween(0xA0, 0xA9));
    return isUnseen ? 3 : 0;
}

/// With single spaces in place of white space.
std::string onOneLine(std::string_view original) {
    std::string text;
    bool isBetween = false;
    while (!original.empty()) {
        const auto startsIt = [&](std::string_view mark) { return original.starts_with(mark); };
        const auto first = static_cast<unsigned char>(original.front());
        std::size_t length = 1;
        if (first <= ' ' || first == 0x7F) {
            isBetween = true;
        } else if (const auto end = std::ranges::find_if(kLineEnds, startsIt); end != kLineEnds.end()) {
            isBetween = true;
            length = end->size();
        } else if (const std::size_t unseen = unseenBytes(original); unseen > 0) {
            length = unseen;
        } else {
            if (std::exchange(isBetween, false) && !text.empty())
                text += ' ';
            text += original.front();
        }
        original.remove_prefix(length);
    }
    return text;
}

std::string_view missing(const GestureRule& rule) {
    const GestureAction& action = rule.action;
    if (!isConfigured(rule.gesture))
        return action.kind == ActionKind::unconfigured
                   ? TRANSLATABLE("Choose a gesture and an action to switch this rule on.")
                   : TRANSLATABLE("Choose a gesture to switch this rule on.");
    if (usesFingerCount(rule.gesture) && !rule.fingerCount)
        return TRANSLATABLE("Choose how many fingers to switch this rule on.");
    if (rule.gesture == GestureKind::anchorDraw && !rule.anchorCorner)
        return TRANSLATABLE("Choose a corner to switch this rule on.");
    if (rule.gesture == GestureKind::anchorDraw && !rule.drawPattern)
        return TRANSLATABLE("Choose a pattern to switch this rule on.");
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            return TRANSLATABLE("Record a shortcut to switch this rule on.");
        case ActionKind::openURL:
            return TRANSLATABLE("Enter an address to switch this rule on.");
        case ActionKind::openFileOrFolder:
            return TRANSLATABLE("Choose a file or folder to switch this rule on.");
        case ActionKind::launchApplication:
            return TRANSLATABLE("Choose an application to switch this rule on.");
        case ActionKind::shellCommand:
            return trimmed(action.value).empty() ? TRANSLATABLE("Enter a command to switch this rule on.")
                                                 : TRANSLATABLE("Confirm the command to switch this rule on.");
        default:
            return TRANSLATABLE("Choose an action to switch this rule on.");
    }
}

}  // namespace

std::string capitalized(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string displayName(const GestureRule& rule) {
    std::string name = onOneLine(rule.name);
    return name.empty() ? translated("Untitled gesture") : name;
}

std::string shortGesture(const GestureRule& rule) {
    const std::string fingers = rule.fingerCount ? std::to_string(*rule.fingerCount) : "…";
    const auto repeated = [&](const Repeated& words) {
        const int count = repetitionCount(rule.gesture).value_or(1);
        return translated(words.at(static_cast<std::size_t>(count - 1)), {fingers});
    };
    switch (gestureTypeChoice(rule.gesture)) {
        case GestureTypeChoice::unconfigured:
            break;
        case GestureTypeChoice::tap:
            return repeated(kTap);
        case GestureTypeChoice::physicalClick:
            return repeated(kClick);
        case GestureTypeChoice::softClick:
            return repeated(kSoftClick);
        case GestureTypeChoice::forceClick:
            return repeated(kForceClick);
        case GestureTypeChoice::tipTapLeft:
            return repeated(kTipTapLeft);
        case GestureTypeChoice::tipTapRight:
            return repeated(kTipTapRight);
        case GestureTypeChoice::edgeSlide:
            return translated(kSlide.at(static_cast<std::size_t>(rule.resolvedEdgeSlideSide())), {fingers});
        case GestureTypeChoice::anchorDraw:
            if (!rule.anchorCorner && !rule.drawPattern)
                return translated(title(rule.gesture));
            return translated(
                "%1, %2",
                {rule.anchorCorner ? translated(title(*rule.anchorCorner)) : "…",
                 rule.drawPattern ? translated(kPatterns.at(static_cast<std::size_t>(*rule.drawPattern))) : "…"});
    }
    return translated("No gesture");
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
            return translated("Volume");
        default:
            return onOneLine(text);
    }
}

std::optional<std::string> whatIsMissing(const GestureRule& rule) {
    if (rule.isReady())
        return std::nullopt;
    return translated(missing(rule));
}

}  // namespace kinesta
