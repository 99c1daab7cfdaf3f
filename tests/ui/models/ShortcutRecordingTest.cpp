#include "ui/models/ShortcutRecording.h"

#include <gtest/gtest.h>

#include "actions/KeyboardLayout.h"

namespace kinesta::testing {
namespace {

using State = ShortcutRecording::State;

/// Keys are letters: S and s are the two Shift keys, C is Ctrl, G AltGr; all others are keys without a modifier, of
/// which x has no code. The modifiers of an event are the held ones themselves.
struct FakeKeyboard final : KeyRecording, KeyboardLayout {
    enum : HeldModifiers { shift = 1, control = 2, altGr = 4 };

    HeldModifiers givenBy(const NativeKey& key) const override {
        const auto letter = static_cast<char>(key.code);
        return letter == 'S' || letter == 's' ? shift : letter == 'C' ? control : letter == 'G' ? altGr : 0;
    }
    HeldModifiers inForce(const NativeKey& key) const override { return static_cast<HeldModifiers>(key.modifiers); }
    Held read(HeldModifiers held) const override {
        const auto modifiers = modifiersWith(0, held);
        return {modifiers, words(modifiers), (held & altGr) != 0 ? "No AltGr." : ""};
    }
    Result<std::uint16_t> keyCodeOf(const NativeKey& key) const override {
        if (key.code == 'x')
            return Error{"No code."};
        return static_cast<std::uint16_t>(key.code);
    }
    ShortcutModifiers modifiersWith(std::uint16_t /*keyCode*/, HeldModifiers held) const override {
        return {((held & shift) != 0 ? 8 : 0) | ((held & control) != 0 ? 1 : 0)};
    }
    std::optional<std::uint16_t> underFunction(std::uint16_t /*keyCode*/) const override { return std::nullopt; }
    bool presses(std::uint16_t keyCode, std::uint64_t /*flags*/, const NativeKey& key, HeldModifiers) const override {
        return keyCode == key.code;
    }
    KeyboardLayout& layout() override { return *this; }
    KeyWords words(ShortcutModifiers /*modifiers*/) const override { return {"Shift", "C", "Alt", "Ctrl", "fn", true}; }
    std::string nameWithFunction(std::uint16_t keyCode, std::uint64_t /*flags*/) const override {
        return keyCode == 123 ? "Home" : "";
    }
    bool works(const CommonMacShortcut& /*preset*/) const override { return true; }
    std::optional<KeyboardLayoutCharacters> charactersWithoutModifiers() override { return std::nullopt; }
};

struct Recorder {
    explicit Recorder(HeldModifiers heldBefore = 0) : before(heldBefore) {
        recording.onRecorded = [this](const auto& shortcut) {
            result += shortcut ? " recorded " + inWords(shortcutCaps(*shortcut, keyboard)) : " cleared";
        };
        recording.start();
    }

    /// "+S" presses S, "-S" releases it; "+e" is Escape and "+d" Delete. Returns what is held, and what came of it.
    std::string operator()(const std::string& steps) {
        using Meaning = ShortcutRecording::Meaning;
        for (std::size_t i = 0; i + 1 < steps.size(); i += 3) {
            const NativeKey key{static_cast<std::uint32_t>(steps[i + 1]), 0, before};
            const char letter = steps[i + 1];
            if (steps[i] == '+')
                recording.press(key, letter == 'e' ? Meaning::cancel : letter == 'd' ? Meaning::clear : Meaning::key);
            else
                recording.release(key);
        }
        return inWords(recording.caps()) + result;
    }

    FakeKeyboard keyboard;
    HeldModifiers before;
    ShortcutRecording recording{keyboard};
    std::string result;
};

TEST(ShortcutRecording, FollowsTheKeysThatAreHeld) {
    struct Row {
        const char* steps;
        const char* outcome;
        const char* hint;
    };
    const std::string press = "Press the keys. Escape cancels, Delete clears.";
    for (const Row& row : std::vector<Row>{
             {"", "", press.c_str()},
             {"+S", "Shift", press.c_str()},
             {"+S +s -S", "Shift", press.c_str()},
             {"+S +s -S -s", "", "A shortcut needs one more key."},
             {"+S +s -S -s +C", "Ctrl", press.c_str()},
             {"+S +C -S +\x01 -C", "Ctrl+S recorded Ctrl+S", ""},
             {"-S +\x2F", "Key 47 recorded Key 47", "It goes out by its place on the keyboard."},
             {"+C +e", "Ctrl+F9 recorded Ctrl+F9", ""},
             {"+e", "", ""},
             {"+d", " cleared", ""},
             {"+C +x -C", "", "No code."},
             {"+C +G +\x01", "Ctrl", "No AltGr."},
             {"+C +G -G +\x01", "Ctrl+S recorded Ctrl+S", ""},
         }) {
        Recorder recorder;
        EXPECT_EQ(recorder(row.steps), row.outcome) << row.steps;
        EXPECT_EQ(recorder.recording.hint(), row.hint) << row.steps;
    }
    Recorder withShiftHeld(FakeKeyboard::shift);
    EXPECT_EQ(withShiftHeld("+\x01"), "Shift+S recorded Shift+S");
    Recorder releasing(FakeKeyboard::shift | FakeKeyboard::control);
    EXPECT_EQ(releasing("-S"), "Ctrl") << "held before it listened";
}

TEST(ShortcutRecording, TellsWhenTheDesktopMayHaveTakenTheKeys) {
    Recorder recorder;
    recorder.recording.setShortcut(RecordedShortcut{1, ShortcutModifiers::command});
    recorder("+C -C");
    recorder.recording.leave();
    EXPECT_EQ(recorder.recording.state(), State::unheard);
    EXPECT_EQ(recorder(""), "Ctrl") << "what it saw";
    recorder.recording.setShortcut(RecordedShortcut{1, ShortcutModifiers::command});
    EXPECT_EQ(recorder.recording.state(), State::unheard) << "nothing changed";
    recorder.recording.setShortcut(RecordedShortcut{123, ShortcutModifiers::function | ShortcutModifiers::shift});
    EXPECT_EQ(recorder(""), "Shift+Home");
    for (const char* steps : {"", "+C +x"}) {  // nothing seen, or everything seen
        Recorder quiet;
        quiet(steps);
        quiet.recording.leave();
        EXPECT_EQ(quiet.recording.state(), State::resting) << steps;
    }
}

}  // namespace
}  // namespace kinesta::testing
