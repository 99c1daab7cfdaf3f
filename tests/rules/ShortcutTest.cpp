#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "rules/CommonMacShortcut.h"
#include "rules/ShortcutKey.h"

namespace kinesta {
namespace {

constexpr ShortcutModifiers kCommand = ShortcutModifiers::command;
constexpr ShortcutModifiers kOption = ShortcutModifiers::option;
constexpr ShortcutModifiers kControl = ShortcutModifiers::control;
constexpr ShortcutModifiers kShift = ShortcutModifiers::shift;
constexpr ShortcutModifiers kFunction = ShortcutModifiers::function;
constexpr ShortcutModifiers kAll = kCommand | kOption | kControl | kShift | kFunction;

TEST(ShortcutKey, NamesAreDistinctAndInSearchOrder) {
    std::string names;
    std::set<std::uint16_t> codes;
    for (const ShortcutKey& key : ShortcutKey::choices()) {
        names.append(key.name).append(" ");
        codes.insert(key.keyCode);
        EXPECT_EQ(ShortcutKey::nameFor(key.keyCode), key.name);
    }
    EXPECT_EQ(names,
              "A S D F H G Z X C V B Q W E R Y T 1 2 3 4 6 5 = 9 7 - 8 0 O U I P L J K N M [ ] , / ` "
              "Return Tab Space Delete Escape Left Right Down Up ");
    EXPECT_EQ(codes.size(), 52U);
    for (const std::uint16_t unnamed : std::initializer_list<std::uint16_t>{10, 39, 41, 42, 47, 127, 65535})
        EXPECT_EQ(ShortcutKey::nameFor(unnamed), "Key " + std::to_string(unnamed));
}

TEST(ShortcutKey, LabelsNameModifiersInOneOrder) {
    const std::vector<std::tuple<std::uint16_t, ShortcutModifiers, std::string>> cases{
        {47, kCommand, "⌘Key 47"},
        {0, kAll, "fn ⌃⌥⇧⌘A"},
        {0, ShortcutModifiers{32}, "A"},
        {0, ShortcutModifiers{-1}, "fn ⌃⌥⇧⌘A"},
    };
    for (const auto& [code, modifiers, expected] : cases)
        EXPECT_EQ(ShortcutKey::label(code, modifiers), expected);
}

TEST(ShortcutKey, FlagsAndTheFunctionKey) {
    const std::vector<std::tuple<std::uint16_t, ShortcutModifiers, std::uint64_t, bool>> rows{
        {6, {}, 0, false},
        {6, kCommand | kShift, 0x120000, false},
        {6, kAll, 0x9E0000, false},
        {123, kControl | kFunction, 0xA40000, true},
        {14, kFunction, 0x800000, false},
        {122, kFunction, 0x800000, false},
        {123, {}, 0x200000, false},
        {126, kFunction, 0xA00000, true},
        {127, kFunction, 0x800000, false},
        {6, ShortcutModifiers{32}, 0, false},
    };
    for (const auto& [code, modifiers, flags, pressesFunction] : rows) {
        EXPECT_EQ(ShortcutKey::eventFlags(code, modifiers), flags) << code;
        EXPECT_EQ(ShortcutKey::requiresFunctionKeyTransition(code, modifiers), pressesFunction) << code;
    }
}

TEST(CommonMacShortcut, EachStrokeHasOneTitle) {
    std::set<std::string> ids;
    for (const CommonMacShortcut& preset : CommonMacShortcut::all()) {
        EXPECT_TRUE(ids.insert(preset.id()).second) << preset.title;
        EXPECT_EQ(CommonMacShortcut::actionTitle(preset.keyCode, preset.modifiers), preset.title);
        EXPECT_EQ(preset.isAvailable(14), preset.category != "Window Tiling") << preset.title;
    }
    EXPECT_EQ(ids.size(), 83U);
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, kCommand | kOption | kShift), "Paste and Match Style");
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, kCommand | kOption), std::nullopt);
    EXPECT_EQ(CommonMacShortcut::actionTitle(9, ShortcutModifiers{1 | 32}), std::nullopt);
    EXPECT_EQ(CommonMacShortcut::actionTitle(49, {}), "Quick Look");
}

// A slipped key code or modifier shows in the label; so do a lost row and one out of order.
TEST(CommonMacShortcut, Labels) {
    std::string labels;
    for (const std::string_view category : CommonMacShortcut::categoryOrder()) {
        labels.append("\n").append(category).append(":");
        for (const CommonMacShortcut& preset : CommonMacShortcut::all())
            if (preset.category == category)
                labels.append("|").append(ShortcutKey::label(preset.keyCode, preset.modifiers));
    }
    EXPECT_EQ(labels, R"(
Editing:|⌘X|⌘C|⌘V|⌥⇧⌘V|⌘Z|⇧⌘Z|⌘A|⌘F|⌘G|⌘S|⌘O|⌘P
Windows & Apps:|⌘N|⌘W|⌥⌘W|⌘M|⌥⌘M|⌘H|⌥⌘H|⌘Q|⌘,|⌃⌘F|⌘Tab|⌘`
Window Tiling:|fn ⌃F|fn ⌃C|fn ⌃Left|fn ⌃Right|fn ⌃Up|fn ⌃Down|fn ⌃R)"
                      "|fn ⌃⇧Left|fn ⌃⇧Right|fn ⌃⇧Up|fn ⌃⇧Down|fn ⌃⌥⇧Left|fn ⌃⌥⇧Right|fn ⌃⌥⇧Up|fn ⌃⌥⇧Down"
                      R"(
System:|⌘Space|⌃⌘Space|fn E|fn Q|fn H|fn A|fn C|fn N|fn D|fn ⇧A|⌃⌘Q|⌥⌘Escape|⇧⌘3|⇧⌘4|⇧⌘5|⌃Up|⌃Down
Navigation:|fn Delete|fn Up|fn Down|fn Left|fn Right
Finder:|Space|⇧⌘N|⌘Delete|⌘E|⇧⌘G|⇧⌘H|⌥⌘L|⇧⌘O|⇧⌘F|⇧⌘I|⇧⌘R|⇧⌘U|⌘D|⌘I
Web & Tabs:|⌘T|⇧⌘T|⌘R|⌘L|⌘[|⌘]|⌃Tab|⌃⇧Tab)");
}

TEST(CommonMacShortcut, TilingNeedsVersionFifteen) {
    const auto order = CommonMacShortcut::categoryOrder();
    std::vector<std::string_view> expected(order.begin(), order.end());
    EXPECT_EQ(CommonMacShortcut::availableCategoryOrder(15), expected);
    EXPECT_EQ(CommonMacShortcut::availableCategoryOrder(26), expected);
    std::erase(expected, "Window Tiling");
    EXPECT_EQ(CommonMacShortcut::availableCategoryOrder(14), expected);
}

}  // namespace
}  // namespace kinesta
