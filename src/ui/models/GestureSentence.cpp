#include "ui/models/GestureSentence.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "support/Translation.h"

namespace kinesta {
namespace {

/// Done once, twice, three times.
using Repeated = std::array<std::string_view, 3>;

constexpr Repeated kTap{TRANSLATABLE("Touch with %1 fingers together and lift."),
                        TRANSLATABLE("Touch with %1 fingers together and lift, twice."),
                        TRANSLATABLE("Touch with %1 fingers together and lift, three times.")};
constexpr Repeated kClick{TRANSLATABLE("Press the pad with %1 fingers until it clicks."),
                          TRANSLATABLE("Press the pad with %1 fingers until it clicks, twice."),
                          TRANSLATABLE("Press the pad with %1 fingers until it clicks, three times.")};
constexpr Repeated kSoftClick{TRANSLATABLE("Press to the first click and no deeper."),
                              TRANSLATABLE("Press to the first click and no deeper, twice."),
                              TRANSLATABLE("Press to the first click and no deeper, three times.")};
constexpr Repeated kForceClick{TRANSLATABLE("Press on through to the second, deeper click."),
                               TRANSLATABLE("Press on through to the second, deeper click, twice."),
                               TRANSLATABLE("Press on through to the second, deeper click, three times.")};
constexpr Repeated kTipTapLeft{TRANSLATABLE("Rest one finger, then tap with another to its left."),
                               TRANSLATABLE("Rest one finger, then tap twice with another to its left."),
                               TRANSLATABLE("Rest one finger, then tap three times with another to its left.")};
constexpr Repeated kTipTapRight{TRANSLATABLE("Rest one finger, then tap with another to its right."),
                                TRANSLATABLE("Rest one finger, then tap twice with another to its right."),
                                TRANSLATABLE("Rest one finger, then tap three times with another to its right.")};
/// Along the left, the right, either edge.
constexpr std::array<std::string_view, 3> kSlide{TRANSLATABLE("Slide %1 fingers up or down along the left edge."),
                                                 TRANSLATABLE("Slide %1 fingers up or down along the right edge."),
                                                 TRANSLATABLE("Slide %1 fingers up or down along either edge.")};
constexpr std::array<std::string_view, 4> kNumbers{TRANSLATABLE("two"), TRANSLATABLE("three"), TRANSLATABLE("four"),
                                                   TRANSLATABLE("five")};

constexpr std::array<std::string_view, 9> kShortTitles{
    TRANSLATABLE("Choose a type…"), TRANSLATABLE("Tap"),         TRANSLATABLE("Click"),
    TRANSLATABLE("Soft click"),     TRANSLATABLE("Force Click"), TRANSLATABLE("Tip-tap left"),
    TRANSLATABLE("Tip-tap right"),  TRANSLATABLE("Edge slide"),  TRANSLATABLE("Corner draw")};

/// "two", or "several" if that has not been chosen.
std::string fingers(const GestureRule& rule) {
    if (!rule.fingerCount)
        return translated("several");
    const std::int64_t index = *rule.fingerCount - 2;
    if (index < 0 || index >= static_cast<std::int64_t>(kNumbers.size()))
        return std::to_string(*rule.fingerCount);
    return translated(kNumbers.at(static_cast<std::size_t>(index)));
}

}  // namespace

std::string shortTitle(GestureTypeChoice type) { return translated(kShortTitles.at(static_cast<std::size_t>(type))); }

std::string gestureSentence(const GestureRule& rule) {
    const auto repeated = [&](const Repeated& sentences) {
        const int count = repetitionCount(rule.gesture).value_or(1);
        return translated(sentences.at(static_cast<std::size_t>(count - 1)), {fingers(rule)});
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
            return translated(kSlide.at(static_cast<std::size_t>(rule.resolvedEdgeSlideSide())), {fingers(rule)});
        case GestureTypeChoice::anchorDraw:
            return translated("Rest one finger in the corner, then draw with another.");
    }
    return translated("Each picture shows what the fingers do. Point at one to see it performed on the large pad.");
}

}  // namespace kinesta
