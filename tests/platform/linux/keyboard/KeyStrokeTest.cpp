#include "platform/linux/keyboard/KeyStroke.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>
#include <string>
#include <vector>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
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
            result.append(step.transition == KeyTransition::down ? "+" : "-").append(std::to_string(step.code) + " ");
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
    for (const Row& row : {Row{123, KEY_LEFT, KEY_HOME}, Row{124, KEY_RIGHT, KEY_END}, Row{125, KEY_DOWN, KEY_PAGEDOWN},
                           Row{126, KEY_UP, KEY_PAGEUP}, Row{51, KEY_BACKSPACE, KEY_DELETE},
                           Row{36, KEY_ENTER, KEY_KPENTER}, Row{117, KEY_DELETE, KEY_DELETE}, Row{90, KEY_F20, KEY_F20},
                           Row{49, KEY_SPACE, {}}, Row{71, KEY_NUMLOCK, {}}, Row{300, {}, {}}}) {
        EXPECT_EQ(keyForShortcut(row.keyCode, 0x100000), row.plain) << row.keyCode;
        EXPECT_EQ(keyForShortcut(row.keyCode, kFn | 0x200000), row.withFn) << row.keyCode;
    }
}

TEST(KeyStroke, ReadsModifiersFromFlags) {
    EXPECT_EQ(modifiersForFlags(0xBA0000, Command::control), kShiftModifier | kControlModifier | kAltModifier);
    EXPECT_EQ(modifiersForFlags(0x140000, Command::control), kSuperModifier | kControlModifier) << "two keys";
    EXPECT_EQ(modifiersForFlags(0x1E0000, Command::super), 15) << "all four";
    EXPECT_EQ(modifiersForFlags(0xA00000, Command::control), 0) << "fn and the numeric pad are no modifiers here";
}

TEST(KeyStroke, PutsExactlyTheWantedModifiersInForceAndEveryKeyBack) {
    struct Row {
        const char* situation;
        DesktopModifiers wanted;
        ModifierSituation modifiers;
        std::string expected;  // 29 Ctrl, 97 right Ctrl, 42 Shift, 54 right Shift, 56 Alt, 125 Super, 46 C
    };
    const std::vector<Row> rows{
        {"modifiers come up in reverse", kControlModifier | kShiftModifier | kAltModifier, keyboard(),
         "+42 +29 +56 +46 | -46 -56 -29 -42"},
        {"the right one serves as well", kControlModifier | kShiftModifier,
         keyboard({{KEY_RIGHTCTRL, kControlModifier}}), "+42 +46 | -46 -42"},
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
    };
    for (const Row& row : rows)
        EXPECT_EQ(text(strokeKey(KEY_C, row.wanted, row.modifiers)), row.expected) << row.situation;
    ModifierSituation many;  // more than anyone has fingers
    std::string released, pressed;
    for (std::uint16_t code = 1; code <= 17; ++code) {
        many.held.push_back({code, kShiftModifier});
        released.append("-").append(std::to_string(code) + " ");
        pressed.append(" +").append(std::to_string(code));
    }
    EXPECT_EQ(text(strokeKey(KEY_C, 0, many)), released + "+46 | -46" + pressed);
}

TEST(LinuxActionSettings, FallBackForWhatTheyDoNotKnow) {
    using Route = LinuxActionSettings::InputRoute;
    const auto check = [](const char* command, const char* route, Command commandKey, Route inputRoute) {
        InMemoryUserDefaults defaults;
        defaults.setString("linux.commandKey.v1", command);
        defaults.setString("linux.inputRoute.v1", route);
        const auto settings = LinuxActionSettings::read(defaults);
        EXPECT_EQ(settings.commandKey, commandKey) << command;
        EXPECT_EQ(settings.inputRoute, inputRoute) << route;
        defaults.setInteger("linux.commandKey.v1", 1);
        EXPECT_EQ(LinuxActionSettings::read(defaults).commandKey, Command::control) << "of another type";
    };
    check("super", "uinput", Command::super, Route::uinput);
    check("control", "x11", Command::control, Route::xServer);
    check("Super", "wayland", Command::control, Route::automatic);
}

}  // namespace
}  // namespace kinesta
