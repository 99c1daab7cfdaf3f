#include "platform/linux/keyboard/KeyStroke.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "rules/ShortcutKey.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta {
namespace {

using Command = LinuxActionSettings::CommandKey;

constexpr std::uint64_t kFn = 0x800000;

std::string text(const KeyStroke& stroke) {
    std::string result;
    for (const auto& transitions : {stroke.down, stroke.up}) {
        for (const auto& step : transitions.view())
            result.append(step.transition == KeyTransition::down ? "+" : "-").append(std::to_string(step.code) + " ");
        result += "|";
    }
    return result;
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
    for (std::uint16_t code = 0; code < 256; ++code)
        if (const auto key = evdevKeyCode(code)) {
            EXPECT_TRUE(seen.insert(*key).second) << code << " shares a key with another";
        }
    for (const ShortcutKey& choice : ShortcutKey::choices())
        EXPECT_TRUE(evdevKeyCode(choice.keyCode)) << choice.name;
    for (const std::uint16_t code : std::initializer_list<std::uint16_t>{63, 127, 128, 65535})
        EXPECT_FALSE(evdevKeyCode(code)) << code;
}

TEST(KeyStroke, TurnsFnIntoTheKeysThatItStandsFor) {
    const std::tuple<std::uint16_t, std::optional<std::uint16_t>, std::optional<std::uint16_t>> rows[] = {
        {123, KEY_LEFT, KEY_HOME},     {124, KEY_RIGHT, KEY_END},       {125, KEY_DOWN, KEY_PAGEDOWN},
        {126, KEY_UP, KEY_PAGEUP},     {51, KEY_BACKSPACE, KEY_DELETE}, {36, KEY_ENTER, KEY_KPENTER},
        {117, KEY_DELETE, KEY_DELETE}, {90, KEY_F20, KEY_F20},          {49, KEY_SPACE, {}},
    };
    for (const auto& [keyCode, plain, withFn] : rows) {
        EXPECT_EQ(keyForShortcut(keyCode, 0x100000), plain) << keyCode;
        EXPECT_EQ(keyForShortcut(keyCode, kFn | 0x200000), withFn) << keyCode;
    }
}

TEST(KeyStroke, ReadsModifiersFromFlags) {
    EXPECT_EQ(modifiersForFlags(0xBA0000, Command::control), kShiftModifier | kControlModifier | kAltModifier);
    EXPECT_EQ(modifiersForFlags(0x140000, Command::control), kSuperModifier | kControlModifier) << "two keys";
    EXPECT_EQ(modifiersForFlags(0x100000, Command::super), kSuperModifier);
}

TEST(KeyStroke, PutsExactlyTheWantedModifiersInForceAndEveryKeyBack) {
    ModifierSituation many;  // more than the fingers of two hands
    std::string released, pressed;
    for (std::uint16_t code = 1; code <= 17; ++code) {
        many.held.push_back({code, kShiftModifier});
        released += "-" + std::to_string(code) + " ";
        pressed += "+" + std::to_string(code) + " ";
    }
    const std::tuple<const char*, DesktopModifiers, ModifierSituation, std::string> rows[] = {
        // 29 Ctrl, 97 right Ctrl, 42 Shift, 54 right Shift, 56 Alt, 100 AltGr, 58 Caps Lock, 46 C
        {"modifiers come up in reverse", kControlModifier | kShiftModifier | kAltModifier, keyboard(),
         "+42 +29 +56 +46 |-46 -56 -29 -42 |"},
        {"the right one serves as well", kControlModifier | kShiftModifier,
         keyboard({{KEY_RIGHTCTRL, kControlModifier}}), "+42 +46 |-46 -42 |"},
        {"the right one comes back as the right one", kControlModifier, keyboard({{KEY_RIGHTSHIFT, kShiftModifier}}),
         "-54 +29 +46 |-46 -29 +54 |"},
        {"AltGr", kAltModifier, keyboard({{KEY_RIGHTALT, kOtherModifier}}), "-100 +56 +46 |-46 -56 +100 |"},
        {"a key that gives more than is wanted", kControlModifier,
         keyboard({{KEY_CAPSLOCK, kControlModifier | kSuperModifier}}), "-58 +29 +46 |-46 -29 +58 |"},
        {"a key that gives two wanted ones", kControlModifier | kAltModifier,
         keyboard({{KEY_CAPSLOCK, kControlModifier | kAltModifier}}), "+46 |-46 |"},
        {"a modifier without a key", kSuperModifier, {{{KEY_LEFTCTRL, kControlModifier}}, {}}, "+46 |-46 |"},
        {"many", 0, many, released + "+46 |-46 " + pressed + "|"},
    };
    for (const auto& [situation, wanted, modifiers, expected] : rows)
        EXPECT_EQ(text(strokeKey(KEY_C, wanted, modifiers)), expected) << situation;
}

TEST(LinuxActionSettings, IgnoreUnknownValues) {
    using Route = LinuxActionSettings::InputRoute;
    InMemoryUserDefaults defaults;
    for (const auto& [command, route, commandKey, inputRoute] :
         {std::tuple{"super", "uinput", Command::super, Route::uinput},
          {"control", "x11", Command::control, Route::xServer},
          {"Super", "wayland", Command::control, Route::automatic}}) {
        defaults.setString("linux.commandKey.v1", command);
        defaults.setString("linux.inputRoute.v1", route);
        EXPECT_EQ(LinuxActionSettings::read(defaults).commandKey, commandKey) << command;
        EXPECT_EQ(LinuxActionSettings::read(defaults).inputRoute, inputRoute) << route;
    }
    defaults.setInteger("linux.commandKey.v1", 1);
    EXPECT_EQ(LinuxActionSettings::read(defaults).commandKey, Command::control) << "of another type";
}

}  // namespace
}  // namespace kinesta
