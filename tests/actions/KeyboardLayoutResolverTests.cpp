#include "actions/KeyboardLayoutResolver.h"

#include <gtest/gtest.h>

#include "actions/LetterCase.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

TEST(KeyboardLayoutResolverTest, FindsTheLowestKeyThatTypesTheCharacterInEitherCase) {
    FakeActionDesktop desktop;
    KeyboardLayoutCharacters& characters = desktop.layout.characters.emplace();
    const KeyboardLayoutResolver resolver(desktop.layout);
    characters[0] = "q";
    characters[12] = "a";
    characters[13] = "A";
    characters[30] = "Ä";
    characters[40] = "aa";
    characters[127] = "[";
    const std::vector<std::pair<const char*, std::uint16_t>> rows{
        {"A", 12}, {"a", 12},      {"q", 0},       {"ä", 30},  {"Ä", 30}, {"[", 127},
        {"Z", 99}, {"Return", 99}, {"Key 47", 99}, {"aa", 99}, {"", 99},  {"\u00E4\u0308", 99},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(resolver.keyCode(name, 99), expected) << name;
    desktop.layout.characters.reset();
    EXPECT_EQ(resolver.keyCode("a", 99), 99);
}

TEST(LetterCaseTest, MakesTheCapitalsThatKeyboardsTypeSmall) {
    EXPECT_EQ(lowerCasedLetters("AZaz09[]@`{ ÀÖØÞ ĀĮĲĶĹŇŊŶŸŹŽ ẞẔẠỸ"), "azaz09[]@`{ àöøþ āįĳķĺňŋŷÿźž ßẕạỹ");
    EXPECT_EQ(lowerCasedLetters("ΆΈΊΌΎΏΑΡΣΫ ЀЏАЯѠҀҊҾӀӁӍӐԮ ԱՖ"),
              "άέίόύώαρσϋ ѐџаяѡҁҋҿӏӂӎӑԯ աֆ");
    // No capitals, or none of one small letter.
    for (const std::string text : {"×÷ßÿ", "ıĸŉſ", "İ", "ΐς", "҂҉", "אَ你😀", "\u0378\u03A2\u0530\u0557"})
        EXPECT_EQ(lowerCasedLetters(text), text);
}

TEST(LetterCaseTest, LeavesBytesThatAreNoTextAsTheyAre) {
    // Lone and truncated sequences, an overlong "A", a capital cut short before another.
    for (const std::string bytes : {"\x80", "\xC3", "\xE1\xBA", "\xC1\x81", "\xE0\x81\x81", "\xFF\xFE", "\xF0\x90\x80"})
        EXPECT_EQ(lowerCasedLetters(bytes), bytes);
    EXPECT_EQ(lowerCasedLetters("\xC3"
                                "A\xE1\xC3\x80"),
              "\xC3"
              "a\xE1\xC3\xA0");
}

}  // namespace
}  // namespace kinesta::testing
