#include <gtest/gtest.h>

#include <string>

#include "rules/ActionKind.h"
#include "rules/GestureTypeChoice.h"

namespace kinesta {
namespace {

using enum GestureKind;

/// The raw values in declaration order; each must lead back to its own case.
template <typename E>
std::string rawValues() {
    std::string raws;
    int place = 0;
    for (const E value : allCases<E>()) {
        EXPECT_EQ(value, static_cast<E>(place++)) << rawValue(value);
        EXPECT_EQ(fromRawValue<E>(rawValue(value)), value) << rawValue(value);
        EXPECT_FALSE(title(value).empty()) << rawValue(value);
        raws.append(rawValue(value)).append(" ");
    }
    for (const std::string_view wrong : {"", "Left", "singleTap ", "unconfigured\n", "0", "singleTipTapLeft"})
        EXPECT_EQ(fromRawValue<E>(wrong), std::nullopt) << wrong;
    return raws;
}

TEST(Vocabulary, KeepsItsStoredStrings) {
    EXPECT_EQ(
        rawValues<GestureKind>(),
        "unconfigured singleTap doubleTap tripleTap singleClick singleSoftClick singleForceClick doubleClick "
        "doubleSoftClick doubleForceClick tripleClick tripleSoftClick tripleForceClick tipTapLeft "
        "doubleTipTapLeft tripleTipTapLeft tipTapRight doubleTipTapRight tripleTipTapRight edgeSlide anchorDraw ");
    EXPECT_EQ(rawValues<ActionKind>(),
              "unconfigured keyboardShortcut middleClick closeWindow openURL openFileOrFolder launchApplication "
              "shellCommand toggleConfigurationWindow disableAllRules adjustVolume ");
    EXPECT_EQ(rawValues<GestureTypeChoice>(),
              "unconfigured tap physicalClick softClick forceClick tipTapLeft tipTapRight edgeSlide anchorDraw ");
    EXPECT_EQ(rawValues<EdgeSlideSide>(), "left right both ");
    EXPECT_EQ(rawValues<AnchorCorner>(), "topLeft topRight bottomLeft bottomRight ");
    EXPECT_EQ(rawValues<DrawPattern>(),
              "lineUp lineDown lineLeft lineRight lShape vShape zigzag circleClockwise circleCounterclockwise ");
    EXPECT_EQ(rawValues<PhysicalClickPressure>() + rawValues<TipTapDirection>(), "soft force left right ");
    EXPECT_EQ(title(unconfigured), "Choose a gesture\u2026");
    EXPECT_EQ(title(DrawPattern::lShape), "L \u2014 down, then right");
}

// The raw values name the facts, so the table of facts is checked against them.
bool has(GestureKind kind, std::string_view word) { return rawValue(kind).find(word) != std::string_view::npos; }

std::optional<int> repetitionsInName(GestureKind kind) {
    if (has(kind, "double"))
        return 2;
    if (has(kind, "triple"))
        return 3;
    return has(kind, "single") || has(kind, "tipTap") ? std::optional<int>(1) : std::nullopt;
}

TEST(Vocabulary, HasTheFactsThatItsNamesSay) {
    for (const GestureKind kind : allCases<GestureKind>()) {
        SCOPED_TRACE(rawValue(kind));
        const bool isClick = has(kind, "Click");
        EXPECT_EQ(isConfigured(kind), kind != unconfigured);
        EXPECT_EQ(isPhysicalClick(kind), isClick);
        EXPECT_EQ(usesFingerCount(kind), isClick || (has(kind, "Tap") && !has(kind, "ipTap")) || kind == edgeSlide);
        EXPECT_EQ(repetitionCount(kind), repetitionsInName(kind));
        EXPECT_EQ(physicalClickCount(kind), isClick ? repetitionsInName(kind) : std::nullopt);
        EXPECT_EQ(physicalClickPressure(kind) == PhysicalClickPressure::soft, has(kind, "Soft"));
        EXPECT_EQ(physicalClickPressure(kind) == PhysicalClickPressure::force, has(kind, "Force"));
    }
}

TEST(Vocabulary, MatchesAnyPressureClicksWithAllOfTheirCount) {
    std::string matching;
    for (const GestureKind rule : allCases<GestureKind>())
        for (const GestureKind detected : allCases<GestureKind>())
            if (rule == detected ? !matches(rule, detected) : matches(rule, detected))
                matching.append(rawValue(rule)).append(">").append(rawValue(detected)).append(" ");
    EXPECT_EQ(matching,
              "singleClick>singleSoftClick singleClick>singleForceClick doubleClick>doubleSoftClick "
              "doubleClick>doubleForceClick tripleClick>tripleSoftClick tripleClick>tripleForceClick ");
}

TEST(Vocabulary, MatchesSidesOneWayAndOverlapsThemBothWays) {
    using enum EdgeSlideSide;
    std::string matching;
    std::string overlapping;
    for (const EdgeSlideSide a : {left, right, both}) {
        for (const EdgeSlideSide b : {left, right, both}) {
            matching += matches(a, b) ? '1' : '0';
            overlapping += overlaps(a, b) ? '1' : '0';
        }
    }
    EXPECT_EQ(matching, "100010111");
    EXPECT_EQ(overlapping, "101011111");
}

TEST(Vocabulary, BuildsGesturesOfOneToThreeRepetitions) {
    for (const std::int64_t count : {INT64_MIN, std::int64_t{-1}, std::int64_t{0}, std::int64_t{4}, INT64_MAX}) {
        EXPECT_EQ(tapGesture(count), std::nullopt);
        EXPECT_EQ(physicalClickGesture(count, std::nullopt), std::nullopt);
        EXPECT_EQ(physicalClickGesture(count, PhysicalClickPressure::force), std::nullopt);
        EXPECT_EQ(tipTapGesture(count, TipTapDirection::right), std::nullopt);
    }
    EXPECT_EQ(physicalClickGesture(2, PhysicalClickPressure::soft), doubleSoftClick);
    EXPECT_EQ(tipTapGesture(3, TipTapDirection::right), tripleTipTapRight);
}

TEST(GestureTypeChoice, ReachesEveryGestureAndFallsBackToTheSingleForm) {
    for (const GestureKind kind : allCases<GestureKind>())
        EXPECT_EQ(gestureKind(gestureTypeChoice(kind), repetitionCount(kind).value_or(7)), kind) << rawValue(kind);
    for (const GestureTypeChoice choice : allCases<GestureTypeChoice>())
        for (const std::int64_t count : {INT64_MIN, std::int64_t{0}, std::int64_t{4}})
            EXPECT_EQ(gestureKind(choice, count), gestureKind(choice, 1)) << rawValue(choice);
}

}  // namespace
}  // namespace kinesta
