#include "platform/linux/keyboard/KeyStroke.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>
#include <sstream>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/keyboard/PostingEventSynthesizer.h"
#include "rules/ShortcutKey.h"
#include "support/InMemoryUserDefaults.h"
#include "support/TableRows.h"

namespace kinesta {
namespace {

using Calls = std::vector<std::string>;
using Command = LinuxActionSettings::CommandKey;

constexpr auto kDown = KeyTransition::down;
constexpr auto kUp = KeyTransition::up;

std::string text(std::span<const InputTransition> transitions) {
    std::string result;
    for (const auto& step : transitions)
        result.append(step.transition == kDown ? "+" : "-").append(std::to_string(step.code) + " ");
    return result;
}

/// Modifiers by the letters of Shift, Ctrl, Alt, Meta (Super) and another.
DesktopModifiers modifiers(const std::string& letters) {
    constexpr DesktopModifiers kMeanings[] = {kShiftModifier, kControlModifier, kAltModifier, kSuperModifier,
                                              kOtherModifier};
    DesktopModifiers result = 0;
    for (const char letter : letters)
        result |= kMeanings[std::string_view("SCAMO").find(letter)];
    return result;
}

/// A keyboard with "29 C" and so on, where such keys are held.
ModifierSituation keyboard(const std::string& available, const std::string& held = "") {
    const auto read = [](const std::string& keys, auto& list) {
        std::istringstream words(keys);
        std::uint16_t code = 0;
        for (std::string letters; words >> code >> letters;)
            list.push_back({code, modifiers(letters)});
    };
    ModifierSituation situation;
    read(available, situation.available);
    read(held, situation.held);
    return situation;
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
        EXPECT_EQ(keyForShortcut(keyCode, 0x800000 | 0x200000), withFn) << keyCode;
    }
}

TEST(KeyStroke, ReadsModifiersFromFlags) {
    EXPECT_EQ(modifiersForFlags(0xBA0000, Command::control), modifiers("SCA"));
    EXPECT_EQ(modifiersForFlags(0x140000, Command::control), modifiers("MC")) << "two keys";
    EXPECT_EQ(modifiersForFlags(0x100000, Command::super), modifiers("M"));
}

TEST(KeyStroke, PutsExactlyTheWantedModifiersInForceAndEveryKeyBack) {
    std::string many, released, pressed;  // more than the fingers of two hands
    for (int code = 1; code <= 17; ++code) {
        many += std::to_string(code) + " S ";
        released += "-" + std::to_string(code) + " ";
        pressed += "+" + std::to_string(code) + " ";
    }
    // 29 Ctrl, 97 right Ctrl, 42 Shift, 54 right Shift, 56 Alt, 100 AltGr, 58 Caps Lock, 46 C
    for (const auto& row : tableRows(R"(
modifiers come up in reverse => CSA =>  => +42 +29 +56 +46 |-46 -56 -29 -42 |
the right one serves as well => CS => 97 C => +42 +46 |-46 -42 |
the right one comes back as the right one => C => 54 S => -54 +29 +46 |-46 -29 +54 |
AltGr => A => 100 O => -100 +56 +46 |-46 -56 +100 |
a key that gives more than is wanted => C => 58 CM => -58 +29 +46 |-46 -29 +58 |
a key that gives two wanted ones => CA => 58 CA => +46 |-46 |
a modifier without a key => O =>  => +46 |-46 |
many =>  => )" + many + " => " + released +
                                         "+46 |-46 " + pressed + "|",
                                     4)) {
        const KeyStroke stroke = strokeKey(KEY_C, modifiers(row[1]), keyboard("42 S 29 C 56 A 125 M", row[2]));
        EXPECT_EQ(text(stroke.down.view()) + "|" + text(stroke.up.view()) + "|", row[3]) << row[0];
    }
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

struct PostingEventSynthesizerTest : ::testing::Test, InputPoster {
    bool isAvailable() override { return works; }
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override {
        return works && code != KEY_102ND ? std::optional(keyboard("42 S 29 C", "42 S")) : std::nullopt;
    }
    std::optional<DesktopLocation> pointerLocation() override { return std::nullopt; }
    bool post(std::span<const InputTransition> transitions) override {
        if (works)
            calls.push_back(text(transitions));
        return works;
    }

    /// Makes and posts events: transitions of keys with the same flags, or without any.
    void keys(std::initializer_list<std::pair<std::uint16_t, KeyTransition>> steps,
              std::optional<std::uint64_t> flags = {}) {
        for (const auto& [code, transition] : steps) {
            const auto event = synthesizer->makeKeyEvent(nullptr, code, transition);
            if (flags && code != 63)
                event->setFlags(*flags);
            event->post();
        }
    }

    bool works = true;
    Calls calls, log;
    InMemoryUserDefaults defaults;
    std::unique_ptr<PostingEventSynthesizer> synthesizer = std::make_unique<PostingEventSynthesizer>(
        *this, defaults, [this](const std::string& line) { log.push_back(line); });
};

TEST_F(PostingEventSynthesizerTest, LeavesHeldModifiersToAKeyWithoutFlags) {
    for (const auto& flags : {std::optional<std::uint64_t>(), std::optional<std::uint64_t>(0xB00000)})
        keys({{63, kDown}, {123, kDown}, {123, kUp}, {63, kUp}}, flags);  // 63 is fn
    EXPECT_EQ(calls, (Calls{"+105 ", "-105 ", "-42 +29 +102 ", "-102 -29 +42 "}));
    EXPECT_EQ(log, Calls{});
}

TEST_F(PostingEventSynthesizerTest, PutsModifiersBackEvenIfAKeyNeverComesUp) {
    keys({{8, kDown}, {9, kDown}, {8, kUp}, {9, kUp}, {8, kDown}}, 0x100000);  // 8 is released before 9 is pressed
    synthesizer.reset();
    EXPECT_EQ(calls, (Calls{"-42 +29 +46 ", "-46 -29 +42 ", "-42 +29 +47 ", "-46 ", "-47 -29 +42 ", "-42 +29 +46 ",
                            "-46 -29 +42 "}));
}

TEST_F(PostingEventSynthesizerTest, SkipsKeysThatAreNotThereAndSaysSoOnce) {
    for (const auto& [code, flags] : {std::pair<std::uint16_t, std::uint64_t>{10, 0}, {14, 0x800000}, {123, 0xA60000}})
        keys({{code, kDown}, {code, kUp}}, flags);
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(log, (Calls{"The key with code 10 is not on this keyboard. Choose another key.",
                          "The key with code 14 has no meaning together with fn on this desktop. Choose another "
                          "shortcut.",
                          "The shortcut tiles windows, and that was not possible. See: kinesta doctor"}));
}

TEST_F(PostingEventSynthesizerTest, PressesVolumeKeysWithoutModifiers) {
    for (const std::int64_t data1 : {0x00A00, 0x00B00, 0x10A00, 0x10B00, 0x20A00, 0x00C00})
        if (const auto event = synthesizer->makeSystemDefinedEvent({0, 8, data1, -1}))
            event->post();
    EXPECT_EQ(calls, (Calls{"-42 +115 ", "-115 +42 ", "-42 +114 ", "-114 +42 "}));
    EXPECT_EQ(synthesizer->makeSystemDefinedEvent({0, 7, 0xA00, -1}), nullptr) << "of another subtype";
}

TEST_F(PostingEventSynthesizerTest, ReleasesOnlyWhatItPressed) {
    works = false;
    keys({{8, kDown}}, 0x100000);
    works = true;
    keys({{8, kUp}}, 0x100000);
    EXPECT_EQ(calls, Calls{"-46 "});
    EXPECT_EQ(log, Calls{}) << "the poster says itself that it does not work";
}

}  // namespace
}  // namespace kinesta
