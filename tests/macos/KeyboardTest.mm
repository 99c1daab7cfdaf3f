#include "MacActionsTest.h"
#include "actions/ActionExecutor.h"
#include "platform/macos/keyboard/MacKeyRecording.h"
#include "rules/ShortcutKey.h"
#include "ui/models/ShortcutRecording.h"

namespace kinesta {
namespace {

class KeyboardOnTheMac : public MacActionsTest {
  protected:
    /// The key that is posted for a stored A, or 0.
    int postedForA() {
        GestureAction action;
        action.kind = ActionKind::keyboardShortcut;
        action.keyCode = 0;
        ActionExecutor(ports()).execute(action, 0, false, std::nullopt);
        for (const std::string& call : objc::takeCalls())
            if (call.ends_with(" down"))
                return std::stoi(call.substr(call.rfind(' ', call.size() - 6)));
        return -1;
    }
};

/// With the digits of the keypad.
const std::map<int, std::u16string> kFrench{{0, u"q"}, {12, u"a"},  {18, u"1"},   {83, u"1"},
                                            {33, u""}, {36, u"\r"}, {115, u"\x1"}};

TEST_F(KeyboardOnTheMac, AsksWhatEveryKeyTypes) {
    fakes::setKeyboardLayout({{0, u"q"}, {1, u""}, {2, u"ß"}, {3, u"😀"}, {4, u"\xD83D"}, {5, u"12345"}, {127, u"z"}});
    const auto characters = layout.charactersWithoutModifiers();
    ASSERT_TRUE(characters);
    KeyboardLayoutCharacters expected;
    expected[0] = "q";
    expected[2] = "ß";
    expected[3] = "😀";
    expected[127] = "z";
    EXPECT_EQ(*characters, expected);
    Calls calls{"TISCopyCurrentKeyboardLayoutInputSource",
                "TISGetInputSourceProperty TISInputSource \"TISPropertyUnicodeKeyLayoutData\""};
    for (int code = 0; code < 128; ++code)
        calls.push_back("UCKeyTranslate " + std::to_string(code) + " 0 0 91 0 0 4");
    EXPECT_EQ(objc::takeCalls(), calls);
}

TEST_F(KeyboardOnTheMac, PostsTheKeyThatTypesTheStoredCharacterNow) {
    fakes::setKeyboardLayout(kFrench);
    EXPECT_EQ(postedForA(), 12);
    fakes::setKeyboardLayout({{0, u"A"}, {12, u"a"}});
    EXPECT_EQ(postedForA(), 0) << "no layout is kept";
    for (const char* const failing : {"TISCopyCurrentKeyboardLayoutInputSource", "TISGetInputSourceProperty",
                                      "CFDataGetBytePtr", "CFStringCreateWithCharacters", "UCKeyTranslate"}) {
        becomeAsAfterLogin();
        fakes::setKeyboardLayout(kFrench);
        fakes::makeFail(failing);
        EXPECT_EQ(postedForA(), 0) << failing;
    }
}

TEST_F(KeyboardOnTheMac, RecordsThePressedKeyAndItsModifiers) {
    fakes::setKeyboardLayout(kFrench);
    MacKeyRecording keyboard(layout);
    ShortcutRecording recording(keyboard);
    constexpr std::uint32_t kCommand = 0x100108, kShift = 0x20102, kFn = 0x800100, kArrow = 0xA00100;
    const auto recorded = [&](std::uint32_t key, std::uint32_t modifiers) {
        recording.start();
        recording.press({0, key, modifiers}, ShortcutRecording::Meaning::key);
        const auto& shortcut = recording.shortcut();
        const bool isRecorded = recording.state() == ShortcutRecording::State::resting;
        return isRecorded ? ShortcutKey::label(shortcut->keyCode, shortcut->modifiers) : recording.hint();
    };
    EXPECT_EQ(recorded(12, kCommand | kShift), "⇧⌘A");  // by what it types
    EXPECT_EQ(recorded(0, kFn), "fn Q");
    EXPECT_EQ(recorded(123, kArrow | 0x40000), "⌃Left") << "arrows always have the flag of fn";
    EXPECT_EQ(recorded(115, kFn | 0x80000), "⌥Key 115");
    EXPECT_EQ(inWords(recording.caps()), "Option+Home");
    EXPECT_EQ(recorded(83, 0x200100), "Key 83") << "not the digit above the letters";
    EXPECT_EQ(recorded(90, kFn), "Key 90");
    EXPECT_EQ(recorded(57, 0x10000), "Keys that lock others cannot be part of a shortcut. Press another key.");
    EXPECT_EQ(recorded(128, 0), "A shortcut cannot hold this key. Press another one.");

    EXPECT_FALSE(keyboard.presses(12, 0x20000, {0, 12, kCommand}, keyboard.inForce({0, 12, kCommand})));

    // Modifiers one by one, with the flags of before, as Qt reports them.
    recording.start();
    recording.press({0, 56, 0}, ShortcutRecording::Meaning::key);
    recording.press({0, 54, kShift}, ShortcutRecording::Meaning::key);
    EXPECT_EQ(inWords(recording.caps()), "Shift+Command");
    recording.release({0, 56, kCommand | kShift});
    EXPECT_EQ(inWords(recording.caps()), "Command");
    recording.release({0, 54, kCommand});
    EXPECT_EQ(recording.hint(), "A shortcut needs one more key.");
}

}  // namespace
}  // namespace kinesta
