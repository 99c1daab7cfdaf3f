#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/CommandRunner.h"
#include "cli/terminal/TextTable.h"

namespace kinesta::testing {
namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLine, ReportsBadUsageWithStatusTwo) {
    const CommandRunner kinesta;
    for (const Arguments& arguments :
         {Arguments{"--background", "demo"}, Arguments{"ctl"}, Arguments{"frobnicate"}, Arguments{"replay"},
          Arguments{"rules"}, Arguments{"rules", "check"}, Arguments{"gestures", "--yaml"},
          Arguments{"replay", "-", "--allow-shell-commands"}, Arguments{"demo", "surplus"}}) {
        const Ran ran = kinesta.run(arguments);
        EXPECT_EQ(ran.status, 2) << ::testing::PrintToString(arguments);
        EXPECT_EQ(ran.out, "");
        EXPECT_NE(ran.err, "");
    }
}

TEST(CommandLine, HelpsWithEverySubcommand) {
    const CommandRunner kinesta;
    const Ran help = kinesta.run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_NE(help.out.find("Examples:"), std::string::npos);
    for (const char* name : {"demo", "replay", "convert", "rules", "gestures", "actions", "shortcuts"}) {
        EXPECT_NE(help.out.find(name), std::string::npos) << name;
        EXPECT_EQ(kinesta.run({name, "--help"}).status, 0) << name;
    }
    EXPECT_EQ(kinesta.run({"--version"}).out.rfind("kinesta ", 0), 0U);
}

TEST(CommandLine, ListsTheVocabularyInDeclarationOrder) {
    const CommandRunner kinesta;
    const auto array = [&](const char* command) {
        const Ran ran = kinesta.run({command, "--json"});
        EXPECT_EQ(ran.status, 0);
        return nlohmann::ordered_json::parse(ran.out);
    };
    const auto gestures = array("gestures");
    ASSERT_EQ(gestures.size(), 21U);
    EXPECT_EQ(gestures[0].dump(), R"~({"raw":"unconfigured","title":"Choose a gesture…","usesFingerCount":false,)~"
                                  R"~("repetitionCount":null,"physicalClickCount":null,)~"
                                  R"~("physicalClickPressure":null})~");
    EXPECT_EQ(gestures[9].dump(),
              R"~({"raw":"doubleForceClick","title":"Double Force Click (stage 2)","usesFingerCount":true,)~"
              R"~("repetitionCount":2,"physicalClickCount":2,"physicalClickPressure":"force"})~");
    EXPECT_EQ(gestures[20]["raw"], "anchorDraw");

    const auto actions = array("actions");
    ASSERT_EQ(actions.size(), 11U);
    EXPECT_EQ(actions[10].dump(), R"({"raw":"adjustVolume","title":"Adjust system volume"})");

    const auto shortcuts = array("shortcuts");
    ASSERT_EQ(shortcuts.size(), 83U);
    EXPECT_EQ(shortcuts[31].dump(), R"({"category":"Window Tiling","title":"Arrange Left & Right","keyCode":123,)"
                                    R"("modifiers":28,"minimumMacOSMajorVersion":15,"label":"fn ⌃⇧Left"})");
    EXPECT_EQ(shortcuts[82].dump(), R"({"category":"Web & Tabs","title":"Previous Tab","keyCode":48,"modifiers":12,)"
                                    R"("minimumMacOSMajorVersion":null,"label":"⌃⇧Tab"})");
}

TEST(TextTable, MeasuresAndCutsByColumns) {
    const std::vector<std::tuple<std::string, std::size_t, std::string>> rows{{"", 0, ""},
                                                                              {"abcd", 4, "abcd"},
                                                                              {"abcde", 5, "abc…"},
                                                                              {"⌃⇧⌘Tab", 6, "⌃⇧⌘…"},
                                                                              {"漢字", 4, "漢字"},
                                                                              {"漢字x", 5, "漢…"},
                                                                              {"e\u0301t", 2, "e\u0301t"},
                                                                              {"\xff\xfe", 2, "\xff\xfe"},
                                                                              {"ab\xe2\x80", 4, "ab\xe2\x80"}};
    for (const auto& [text, width, fittedToFour] : rows) {
        EXPECT_EQ(displayWidth(text), width) << text;
        EXPECT_EQ(fitted(text, 4), fittedToFour);
    }
    EXPECT_EQ(fitted("abc", 0), "");
    EXPECT_EQ(printable("a\tb\x7f\u0085\u2028c"), "a·b···c");
}

}  // namespace
}  // namespace kinesta::testing
