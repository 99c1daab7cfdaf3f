#include <gtest/gtest.h>

#include <set>
#include <string>

#include "rules/ActionKind.h"
#include "rules/GestureTypeChoice.h"

namespace kinesta {
namespace {

using enum GestureKind;

template <typename E>
void expectSoundTable(std::size_t cases) {
    const auto table = enumTable<E>();
    ASSERT_EQ(table.size(), cases);
    std::set<std::string_view> raws;
    for (std::size_t i = 0; i < cases; ++i) {
        EXPECT_EQ(table[i].value, static_cast<E>(i)) << table[i].rawValue;
        EXPECT_EQ(fromRawValue<E>(table[i].rawValue), table[i].value) << table[i].rawValue;
        EXPECT_FALSE(table[i].title.empty()) << table[i].rawValue;
        raws.insert(table[i].rawValue);
    }
    EXPECT_EQ(raws.size(), cases);
    for (const std::string_view wrong : {"", "Left", "singleTap ", "unconfigured\n", "0"})
        EXPECT_EQ(fromRawValue<E>(wrong), std::nullopt) << wrong;
}

TEST(Vocabulary, EveryCaseKeepsItsPlaceAndItsStoredString) {
    expectSoundTable<GestureKind>(21);
    expectSoundTable<GestureTypeChoice>(9);
    expectSoundTable<ActionKind>(11);
    expectSoundTable<EdgeSlideSide>(3);
    expectSoundTable<AnchorCorner>(4);
    expectSoundTable<DrawPattern>(9);
    expectSoundTable<PhysicalClickPressure>(2);
    expectSoundTable<TipTapDirection>(2);
    EXPECT_EQ(rawValue(tipTapLeft), "tipTapLeft");
    EXPECT_EQ(fromRawValue<GestureKind>("singleTipTapLeft"), std::nullopt);
    EXPECT_EQ(title(unconfigured), "Choose a gesture\u2026");
    EXPECT_EQ(title(GestureTypeChoice::anchorDraw), "Corner hold and draw (prototype)");
    EXPECT_EQ(title(anchorDraw), "Corner hold and draw");
    EXPECT_EQ(title(DrawPattern::lShape), "L \u2014 down, then right");
}

// The stored strings are words about the gesture; they tell the facts a second time.
bool has(GestureKind kind, std::string_view word) { return rawValue(kind).find(word) != std::string_view::npos; }

std::optional<int> repetitionsInName(GestureKind kind) {
    if (has(kind, "double"))
        return 2;
    if (has(kind, "triple"))
        return 3;
    return has(kind, "single") || has(kind, "tipTap") ? std::optional<int>(1) : std::nullopt;
}

TEST(Vocabulary, FactsAgreeWithTheName) {
    for (const auto& row : enumTable<GestureKind>()) {
        const GestureKind kind = row.value;
        SCOPED_TRACE(row.rawValue);
        const bool isTipTap = has(kind, "ipTap");
        EXPECT_EQ(isConfigured(kind), row.rawValue != "unconfigured");
        EXPECT_EQ(isPhysicalClick(kind), has(kind, "Click"));
        EXPECT_EQ(usesFingerCount(kind),
                  (has(kind, "Tap") && !isTipTap) || has(kind, "Click") || row.rawValue == "edgeSlide");
        EXPECT_EQ(repetitionCount(kind), repetitionsInName(kind));
        EXPECT_EQ(physicalClickCount(kind), has(kind, "Click") ? repetitionsInName(kind) : std::nullopt);
        const auto pressure = has(kind, "Soft")    ? std::optional(PhysicalClickPressure::soft)
                              : has(kind, "Force") ? std::optional(PhysicalClickPressure::force)
                                                   : std::nullopt;
        EXPECT_EQ(physicalClickPressure(kind), pressure);
    }
}

TEST(Vocabulary, OnlyAnAnyPressureClickTakesMoreThanItself) {
    for (const auto& rule : enumTable<GestureKind>()) {
        for (const auto& detected : enumTable<GestureKind>()) {
            std::string anyPressure(detected.rawValue);
            for (const std::string_view word : {"Soft", "Force"})
                if (const auto place = anyPressure.find(word); place != std::string::npos)
                    anyPressure.erase(place, word.size());
            EXPECT_EQ(matches(rule.value, detected.value),
                      rule.rawValue == detected.rawValue || rule.rawValue == anyPressure)
                << rule.rawValue << " takes " << detected.rawValue;
        }
    }
}

TEST(Vocabulary, SidesMatchOneWayAndOverlapBothWays) {
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

TEST(Vocabulary, GesturesAreBuiltFromOneToThreeRepetitions) {
    for (const std::int64_t count : {INT64_MIN, std::int64_t{-1}, std::int64_t{0}, std::int64_t{4}, INT64_MAX}) {
        EXPECT_EQ(tapGesture(count), std::nullopt);
        EXPECT_EQ(physicalClickGesture(count, std::nullopt), std::nullopt);
        EXPECT_EQ(physicalClickGesture(count, PhysicalClickPressure::force), std::nullopt);
        EXPECT_EQ(tipTapGesture(count, TipTapDirection::right), std::nullopt);
    }
    EXPECT_EQ(physicalClickGesture(2, PhysicalClickPressure::soft), doubleSoftClick);
    EXPECT_EQ(tipTapGesture(3, TipTapDirection::right), tripleTipTapRight);
}

TEST(Vocabulary, ThePickerReachesEveryGestureAndFallsBackToTheSingleForm) {
    for (const auto& row : enumTable<GestureKind>()) {
        const GestureTypeChoice choice = gestureTypeChoice(row.value);
        EXPECT_EQ(gestureKind(choice, repetitionCount(row.value).value_or(7)), row.value) << row.rawValue;
    }
    for (const auto& choice : enumTable<GestureTypeChoice>())
        for (const std::int64_t count : {INT64_MIN, std::int64_t{0}, std::int64_t{4}})
            EXPECT_EQ(gestureKind(choice.value, count), gestureKind(choice.value, 1)) << choice.rawValue;
}

}  // namespace
}  // namespace kinesta
