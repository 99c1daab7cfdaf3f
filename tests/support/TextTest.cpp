#include "support/Text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <sstream>

#include "support/TemporaryFolder.h"

using namespace kinesta;

TEST(Text, TrimsUnicodeWhiteSpaceAndLineBreaks) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", ""},
        {" \t\r\n\v\f", ""},
        {"\u0085\u00A0\u1680\u2000\u200A\u2028\u2029\u202F\u205F\u3000", ""},
        {"\u3000 a \u00A0b\u2009\n", "a \u00A0b"},
        {"\u200Ba\uFEFF", "\u200Ba\uFEFF"},  // zero width is not white space
        {"\u180Ea\x1F", "\u180Ea\x1F"},      // nor are a former separator and a control character
        {"\u00E0 \u00E5", "\u00E0 \u00E5"},  // contain the bytes A0 and 85
        {"\x85\xA0", "\x85\xA0"},            // not UTF-8
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(trimmed(text), expected) << testing::PrintToString(text);
}

TEST(Text, LowersAsciiOnly) { EXPECT_EQ(lowerCased("AZ[@`az\u00C4\u0130"), "az[@`az\u00C4\u0130"); }

TEST(Text, RecognizesWellFormedUtf8) {
    std::istringstream good(
        "\x7F \xC2\x80 \xDF\xBF \xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xEF\xBF\xBF \xF0\x90\x80\x80 "
        "\xF4\x8F\xBF\xBF");
    // Wrong lead byte; overlong, surrogate, too large; cut off; followed by no continuation.
    std::istringstream bad(
        "\x80 \xBF \xFF \xC1\xBF \xE0\x9F\xBF \xF0\x8F\xBF\xBF \xED\xA0\x80 \xF4\x90\x80\x80 \xF5\x80\x80\x80 "
        "\xC2 \xE1\x80 \xF1\x80\x80 \xC2\x41 \xE1\x80\xC0 \xF1\x80\x80\x7F");
    EXPECT_TRUE(isUtf8("") && isUtf8(std::string_view("a\0z", 3)));
    int count = 0;
    for (std::string text; good >> text; ++count)
        EXPECT_TRUE(isUtf8("a" + text + "z")) << testing::PrintToString(text);
    for (std::string text; bad >> text; ++count)
        EXPECT_FALSE(isUtf8(text) || isUtf8("a" + text + "z")) << testing::PrintToString(text);
    EXPECT_EQ(count, 9 + 15);
}

TEST(Text, ReadsAndWritesExactNumbersInAnyLocale) {
    const TemporaryFolder locales;
    if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) {
        ASSERT_EQ(std::system(("localedef -f UTF-8 -i de_DE " + locales / "de_DE.UTF-8").c_str()), 0);
        ASSERT_EQ(setenv("LOCPATH", locales.path().c_str(), 1), 0);
        ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
    }
    ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",");
    const std::string halfway = "1.00000000000000011102230246251565404236316680908203125";
    for (const auto& [text, value] : {std::pair<std::string, std::optional<double>>{"0.1", 0.1},
                                      {"-12.5e-1", -1.25},
                                      {"-0", -0.0},
                                      {halfway, 1.0},
                                      {halfway + "0000000000000000000001", 1.0000000000000002},
                                      {"9007199254740993", 9007199254740992},
                                      {"2.2250738585072011e-308", 2.2250738585072011e-308},
                                      {"5e-324", 5e-324},
                                      {"1.7976931348623157e+308", 1.7976931348623157e308}}) {
        EXPECT_EQ(parsedNumber(text), value) << text;
        EXPECT_EQ(std::signbit(*parsedNumber(text)), std::signbit(*value)) << text;
        EXPECT_EQ(parsedNumber(numberText(*value)), value) << numberText(*value);
    }
    for (const char* text :
         {"", "-", "+1", " 1", "1 ", "1,5", "1.5.2", "1e", "0x1", "inf", "nan", "1e309", "-1e400", "1e-400", "1-2"})
        EXPECT_EQ(parsedNumber(text), std::nullopt) << text;
    std::setlocale(LC_NUMERIC, "C");
}
