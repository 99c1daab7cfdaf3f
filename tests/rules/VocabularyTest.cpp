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

TEST(Vocabulary, KnowsTheFactsOfEachGesture) {
    std::string facts;  // "c" for a click, "f" for a number of fingers, the repetitions, the pressure
    for (const GestureKind kind : allCases<GestureKind>()) {
        const auto pressure = physicalClickPressure(kind);
        EXPECT_EQ(isConfigured(kind), kind != unconfigured);
        EXPECT_EQ(physicalClickCount(kind), isPhysicalClick(kind) ? repetitionCount(kind) : std::nullopt);
        facts += std::string(isPhysicalClick(kind) ? "c" : "") + (usesFingerCount(kind) ? "f" : "") +
                 std::to_string(repetitionCount(kind).value_or(0)) + (pressure ? rawValue(*pressure)[0] : ' ') + " ";
    }
    EXPECT_EQ(facts, "0  f1  f2  f3  cf1  cf1s cf1f cf2  cf2s cf2f cf3  cf3s cf3f 1  2  3  1  2  3  f0  0  ");
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
    std::string matching, overlapping;
    for (const EdgeSlideSide a : {left, right, both})
        for (const EdgeSlideSide b : {left, right, both}) {
            matching += matches(a, b) ? '1' : '0';
            overlapping += overlaps(a, b) ? '1' : '0';
        }
    EXPECT_EQ(matching + " " + overlapping, "100010111 101011111");
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
