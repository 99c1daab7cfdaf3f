#include "support/Translation.h"

#include <gtest/gtest.h>

namespace kinesta::testing {
namespace {

class Translation : public ::testing::Test {
  protected:
    void TearDown() override { setTranslator({}); }
};

std::string german(std::string_view english) {
    if (english == "%1 at %2, %3 % full")
        return "%3 % voll: %2, %1";
    return english == "off" ? "aus" : std::string(english);
}

TEST_F(Translation, OfMarkedTextsIsThatOfTheTextsThemselves) {
    markTexts();
    const std::string marked =
        translated("%1 at %2, %3 % full", {translated("off"), "50%1", "9"}) + " " + translated("off") + translated("");
    setTranslator(german);
    EXPECT_EQ(unmarked(marked, MarkedLanguage::ofPerson), "9 % voll: 50%1, aus aus");
    EXPECT_EQ(unmarked(marked, MarkedLanguage::english), "off at 50%1, 9 % full off");
    EXPECT_EQ(unmarked("plain %1 off", MarkedLanguage::ofPerson), "plain %1 off");
    // The output of a program that was ended in the middle.
    for (std::size_t length = 0; length < marked.size(); ++length)
        EXPECT_LE(unmarked(marked.substr(0, length), MarkedLanguage::english).size(), length);
}

}  // namespace
}  // namespace kinesta::testing
