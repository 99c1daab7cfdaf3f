#include <gtest/gtest.h>

#include <set>
#include <string>
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

TEST(ShortcutKey, LabelsModifiersInOneOrder) {
    EXPECT_EQ(ShortcutKey::label(47, kCommand), "⌘Key 47");
    EXPECT_EQ(ShortcutKey::label(0, kAll), "fn ⌃⌥⇧⌘A");
    EXPECT_EQ(ShortcutKey::label(0, ShortcutModifiers{32}), "A");
    EXPECT_EQ(ShortcutKey::label(0, ShortcutModifiers{-1}), "fn ⌃⌥⇧⌘A");
}

TEST(ShortcutKey, DerivesFlagsAndTheFunctionKey) {
    const auto facts = [](std::uint16_t code, ShortcutModifiers modifiers) {
        return std::pair(ShortcutKey::eventFlags(code, modifiers),
                         ShortcutKey::requiresFunctionKeyTransition(code, modifiers));
    };
    EXPECT_EQ(facts(6, kCommand | kShift), std::pair(0x120000UL, false));
    EXPECT_EQ(facts(6, kAll), std::pair(0x9E0000UL, false));
    EXPECT_EQ(facts(6, ShortcutModifiers{32}), std::pair(0UL, false));
    EXPECT_EQ(facts(14, kFunction), std::pair(0x800000UL, false));
    for (const std::uint16_t code : {std::uint16_t{122}, std::uint16_t{127}})
        EXPECT_EQ(facts(code, kFunction), std::pair(0x800000UL, false)) << code;
    EXPECT_EQ(facts(123, kControl | kFunction), std::pair(0xA40000UL, true));
    EXPECT_EQ(facts(126, kFunction), std::pair(0xA00000UL, true));
}

TEST(CommonMacShortcut, HasOneTitlePerStrokeAndCategoriesInOrder) {
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

    struct Version final : SystemVersion {
        int majorVersion() const override { return version; }
        int version = 15;
    } current;
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
