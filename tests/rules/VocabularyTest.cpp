#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "rules/ActionKind.h"
#include "rules/CommonMacShortcut.h"
#include "rules/GestureTypeChoice.h"
#include "rules/ShortcutKey.h"

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
    std::string matching, overlapping;
    for (const EdgeSlideSide a : allCases<EdgeSlideSide>())
        for (const EdgeSlideSide b : allCases<EdgeSlideSide>()) {
            matching += matches(a, b) ? '1' : '0';
            overlapping += overlaps(a, b) ? '1' : '0';
        }
    EXPECT_EQ(matching + " " + overlapping, "100010111 101011111");
}

TEST(GestureTypeChoice, ReachesEveryGestureAndFallsBackToTheSingleForm) {
    for (const GestureKind kind : allCases<GestureKind>())
        EXPECT_EQ(gestureKind(gestureTypeChoice(kind), repetitionCount(kind).value_or(7)), kind) << rawValue(kind);
    EXPECT_EQ(gestureKind(GestureTypeChoice::softClick, 2), doubleSoftClick);
    EXPECT_EQ(gestureKind(GestureTypeChoice::tipTapRight, 3), tripleTipTapRight);
    for (const std::int64_t count : {INT64_MIN, std::int64_t{-1}, std::int64_t{0}, std::int64_t{4}, INT64_MAX}) {
        for (const GestureTypeChoice choice : allCases<GestureTypeChoice>())
            EXPECT_EQ(gestureKind(choice, count), gestureKind(choice, 1)) << rawValue(choice);
        EXPECT_FALSE(tapGesture(count) || tipTapGesture(count, TipTapDirection::right) ||
                     physicalClickGesture(count, std::nullopt) ||
                     physicalClickGesture(count, PhysicalClickPressure::force));
    }
}

constexpr ShortcutModifiers kCommand = ShortcutModifiers::command;
constexpr ShortcutModifiers kOption = ShortcutModifiers::option;
constexpr ShortcutModifiers kControl = ShortcutModifiers::control;
constexpr ShortcutModifiers kShift = ShortcutModifiers::shift;
constexpr ShortcutModifiers kFunction = ShortcutModifiers::function;
constexpr ShortcutModifiers kAll = kCommand | kOption | kControl | kShift | kFunction;

TEST(ShortcutKey, NamesEachKeyOnce) {
    std::set<std::uint16_t> codes;
    for (const ShortcutKey& key : ShortcutKey::choices()) {
        EXPECT_TRUE(codes.insert(key.keyCode).second) << key.name;
        EXPECT_EQ(ShortcutKey::nameFor(key.keyCode), key.name);
    }
    EXPECT_EQ(codes.size(), 52U);
    for (const std::uint16_t unnamed : std::initializer_list<std::uint16_t>{39, 41, 42, 47, 65535})
        EXPECT_EQ(ShortcutKey::nameFor(unnamed), "Key " + std::to_string(unnamed));
}

TEST(ShortcutKey, DerivesFlagsAndTheFunctionKey) {
    for (const auto& [code, modifiers, flags, withFunctionKey] :
         std::vector<std::tuple<std::uint16_t, ShortcutModifiers, std::uint64_t, bool>>{
             {6, kCommand | kShift, 0x120000, false},
             {6, kAll, 0x9E0000, false},
             {6, {32}, 0, false},
             {6, {-1}, 0x9E0000, false},
             {122, kFunction, 0x800000, false},
             {127, kFunction, 0x800000, false},
             {123, kControl | kFunction, 0xA40000, true},
             {126, kFunction, 0xA00000, true}}) {
        EXPECT_EQ(ShortcutKey::eventFlags(code, modifiers), flags) << code;
        EXPECT_EQ(ShortcutKey::requiresFunctionKeyTransition(code, modifiers), withFunctionKey) << code;
    }
}

TEST(CommonMacShortcut, HasOneTitlePerStrokeAndCategoriesInOrder) {
    struct Version final : SystemVersion {
        int majorVersion() const override { return version; }
        int version = 15;
    } current;
    std::set<std::string> ids;
    std::vector<std::string_view> categories;
    for (const CommonMacShortcut& preset : CommonMacShortcut::all()) {
        EXPECT_TRUE(ids.insert(preset.id()).second) << preset.title;
        EXPECT_EQ(CommonMacShortcut::actionTitle(preset.keyCode, preset.modifiers), preset.title);
        EXPECT_EQ(preset.isAvailable(14), preset.category != "Window Tiling") << preset.title;
        if (categories.empty() || categories.back() != preset.category)
            categories.push_back(preset.category);
    }
    EXPECT_EQ(ids.size(), 83U);
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, kCommand | kOption | kShift), "Paste and Match Style");
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, kCommand | kOption), std::nullopt);
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, ShortcutModifiers{1 | 32}), std::nullopt);
    EXPECT_EQ(CommonMacShortcut::availableCategoryOrder(current), categories);
    current.version = 14;
    std::erase(categories, "Window Tiling");
    EXPECT_EQ(CommonMacShortcut::availableCategoryOrder(current), categories);
}

// A fingerprint: names, key codes and modifiers of all presets are what users know and store.
TEST(CommonMacShortcut, KeepsItsLabels) {
    std::string labels;
    for (const CommonMacShortcut& preset : CommonMacShortcut::all())
        labels += ShortcutKey::label(preset.keyCode, preset.modifiers) + "|";
    EXPECT_EQ(labels,
              "⌘X|⌘C|⌘V|⌥⇧⌘V|⌘Z|⇧⌘Z|⌘A|⌘F|⌘G|⌘S|⌘O|⌘P|⌘N|⌘W|⌥⌘W|⌘M|⌥⌘M|⌘H|⌥⌘H|⌘Q|⌘,|⌃⌘F|⌘Tab|⌘`|fn ⌃F|fn ⌃C|fn ⌃Left|"
              "fn ⌃Right|fn ⌃Up|fn ⌃Down|fn ⌃R|fn ⌃⇧Left|fn ⌃⇧Right|fn ⌃⇧Up|fn ⌃⇧Down|fn ⌃⌥⇧Left|fn ⌃⌥⇧Right|fn ⌃⌥⇧Up|"
              "fn ⌃⌥⇧Down|⌘Space|⌃⌘Space|fn E|fn Q|fn H|fn A|fn C|fn N|fn D|fn ⇧A|⌃⌘Q|⌥⌘Escape|⇧⌘3|⇧⌘4|⇧⌘5|⌃Up|⌃Down|"
              "fn Delete|fn Up|fn Down|fn Left|fn Right|Space|⇧⌘N|⌘Delete|⌘E|⇧⌘G|⇧⌘H|⌥⌘L|⇧⌘O|⇧⌘F|⇧⌘I|⇧⌘R|⇧⌘U|⌘D|⌘I|"
              "⌘T|⇧⌘T|⌘R|⌘L|⌘[|⌘]|⌃Tab|⌃⇧Tab|");
}

}  // namespace
}  // namespace kinesta
