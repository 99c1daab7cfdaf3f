#include "platform/linux/KeyStroke.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>
#include <string>
#include <vector>

#include "platform/linux/AnsiKeyCodes.h"
#include "rules/ShortcutKey.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta {
namespace {

using Command = LinuxActionSettings::CommandKey;

constexpr std::uint64_t kFn = 0x800000;

std::string text(const KeyStroke& stroke) {
    std::string result;
    const auto add = [&](std::span<const InputTransition> transitions) {
        for (const auto& step : transitions)
            result += (step.transition == KeyTransition::down ? "+" : "-") + std::to_string(step.code) + " ";
    };
    add(stroke.down.view());
    result += "| ";
    add(stroke.up.view());
    return result.substr(0, result.size() - 1);
}

ModifierSituation keyboard(std::initializer_list<ModifierKey> held = {}) {
    return {{{KEY_LEFTSHIFT, kShiftModifier},
             {KEY_LEFTCTRL, kControlModifier},
             {KEY_LEFTALT, kAltModifier},
             {KEY_LEFTMETA, kSuperModifier}},
            held};
}

TEST(AnsiKeyCodes, GiveEveryChoosableKeyAKeyOfItsOwn) {
    std::set<std::uint16_t> seen;
    int keys = 0;
    for (std::uint16_t code = 0; code < 128; ++code)
        if (const auto key = evdevKeyCode(code)) {
            seen.insert(*key);
            ++keys;
        }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(keys)) << "two codes share a key";
    for (const ShortcutKey& choice : ShortcutKey::choices())
        EXPECT_TRUE(evdevKeyCode(choice.keyCode)) << choice.name;
    for (const std::uint16_t code : std::initializer_list<std::uint16_t>{63, 127, 128, 255, 65535})
        EXPECT_FALSE(evdevKeyCode(code)) << code;
}

TEST(KeyStroke, TurnsFnIntoTheKeysThatItStandsForAndTypesNoBareLetter) {
    struct Row {
        std::uint16_t keyCode;
        std::optional<std::uint16_t> plain, withFn;
    };
    const std::vector<Row> rows{
        {123, KEY_LEFT, KEY_HOME},        {124, KEY_RIGHT, KEY_END},         {125, KEY_DOWN, KEY_PAGEDOWN},
        {126, KEY_UP, KEY_PAGEUP},        {51, KEY_BACKSPACE, KEY_DELETE},   {36, KEY_ENTER, KEY_KPENTER},
        {115, KEY_HOME, KEY_HOME},        {117, KEY_DELETE, KEY_DELETE},     {122, KEY_F1, KEY_F1},
        {103, KEY_F11, KEY_F11},          {105, KEY_F13, KEY_F13},           {90, KEY_F20, KEY_F20},
        {14, KEY_E, std::nullopt},        {49, KEY_SPACE, std::nullopt},     {71, KEY_NUMLOCK, std::nullopt},
        {63, std::nullopt, std::nullopt}, {300, std::nullopt, std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(keyForShortcut(row.keyCode, 0x100000), row.plain) << row.keyCode;
        EXPECT_EQ(keyForShortcut(row.keyCode, kFn | 0x200000), row.withFn) << row.keyCode;
    }
}

TEST(KeyStroke, ReadsModifiersFromFlags) {
    EXPECT_EQ(modifiersForFlags(0xA00000, Command::control), 0) << "fn and the numeric pad are no modifiers here";
    EXPECT_EQ(modifiersForFlags(0x1E0000, Command::control), kShiftModifier | kControlModifier | kAltModifier);
    EXPECT_EQ(modifiersForFlags(0x1E0000, Command::super),
              kShiftModifier | kControlModifier | kAltModifier | kSuperModifier);
    EXPECT_EQ(modifiersForFlags(0x100000, Command::control), kControlModifier);
    EXPECT_EQ(modifiersForFlags(0x100000, Command::super), kSuperModifier);
    EXPECT_EQ(modifiersForFlags(0x080000, Command::super), kAltModifier);
}

TEST(KeyStroke, PutsExactlyTheWantedModifiersInForceAndEveryKeyBack) {
    struct Row {
        const char* situation;
        DesktopModifiers wanted;
        ModifierSituation modifiers;
        std::string expected;  // 29 Ctrl, 97 right Ctrl, 42 Shift, 54 right Shift, 56 Alt, 125 Super, 46 C
    };
    const std::vector<Row> rows{
        {"a plain key", 0, keyboard(), "+46 | -46"},
        {"one modifier", kControlModifier, keyboard(), "+29 +46 | -46 -29"},
        {"modifiers come up in reverse", kControlModifier | kShiftModifier | kAltModifier, keyboard(),
         "+42 +29 +56 +46 | -46 -56 -29 -42"},
        {"a held one serves, and stays", kControlModifier, keyboard({{KEY_LEFTCTRL, kControlModifier}}), "+46 | -46"},
        {"the right one serves as well", kControlModifier | kShiftModifier,
         keyboard({{KEY_RIGHTCTRL, kControlModifier}}), "+42 +46 | -46 -42"},
        {"an unwanted one makes way", 0, keyboard({{KEY_LEFTSHIFT, kShiftModifier}}), "-42 +46 | -46 +42"},
        {"the right one comes back as the right one", kControlModifier, keyboard({{KEY_RIGHTSHIFT, kShiftModifier}}),
         "-54 +29 +46 | -46 -29 +54"},
        {"both of a pair", 0, keyboard({{KEY_LEFTSHIFT, kShiftModifier}, {KEY_RIGHTSHIFT, kShiftModifier}}),
         "-42 -54 +46 | -46 +42 +54"},
        {"AltGr", kAltModifier, keyboard({{KEY_RIGHTALT, kOtherModifier}}), "-100 +56 +46 | -46 -56 +100"},
        {"a key that gives more than is wanted", kControlModifier,
         keyboard({{KEY_CAPSLOCK, kControlModifier | kSuperModifier}}), "-58 +29 +46 | -46 -29 +58"},
        {"a key that gives two wanted ones", kControlModifier | kAltModifier,
         keyboard({{KEY_CAPSLOCK, kControlModifier | kAltModifier}}), "+46 | -46"},
        {"a modifier without a key", kSuperModifier, {{{KEY_LEFTCTRL, kControlModifier}}, {}}, "+46 | -46"},
        {"more held keys than anyone has fingers", 0,
         keyboard({{1, 1},
                   {2, 1},
                   {3, 1},
                   {4, 1},
                   {5, 1},
                   {6, 1},
                   {7, 1},
                   {8, 1},
                   {9, 1},
                   {10, 1},
                   {11, 1},
                   {12, 1},
                   {13, 1},
                   {14, 1},
                   {15, 1},
                   {16, 1},
                   {17, 1}}),
         "-1 -2 -3 -4 -5 -6 -7 -8 -9 -10 -11 -12 -13 -14 -15 -16 -17 +46 | -46 +1 +2 +3 +4 +5 +6 +7 +8 +9 +10 +11 +12 "
         "+13 +14 +15 +16 +17"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(text(strokeKey(KEY_C, row.wanted, row.modifiers)), row.expected) << row.situation;
}

TEST(LinuxActionSettings, FallBackForWhatTheyDoNotKnow) {
    struct Row {
        std::string command, route;
        Command commandKey;
        LinuxActionSettings::InputRoute inputRoute;
    };
    using Route = LinuxActionSettings::InputRoute;
    for (const Row& row : {Row{"super", "uinput", Command::super, Route::uinput},
                           Row{"control", "x11", Command::control, Route::xServer},
                           Row{"Super", "wayland", Command::control, Route::automatic}}) {
        InMemoryUserDefaults defaults;
        defaults.setString("linux.commandKey.v1", row.command);
        defaults.setString("linux.inputRoute.v1", row.route);
        const auto settings = LinuxActionSettings::read(defaults);
        EXPECT_EQ(settings.commandKey, row.commandKey) << row.command;
        EXPECT_EQ(settings.inputRoute, row.inputRoute) << row.route;
    }
    InMemoryUserDefaults wrongType;
    wrongType.setInteger("linux.commandKey.v1", 1);
    EXPECT_EQ(LinuxActionSettings::read(wrongType).commandKey, Command::control);
}

}  // namespace
}  // namespace kinesta
