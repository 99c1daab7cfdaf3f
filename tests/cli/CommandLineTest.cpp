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
        EXPECT_TRUE(ran.status == 2 && ran.out.empty() && !ran.err.empty()) << ::testing::PrintToString(arguments);
    }
}

TEST(CommandLine, HelpsWithEverySubcommand) {
    const CommandRunner kinesta;
    const Ran help = kinesta.run({"--help"});
    EXPECT_EQ(help.err, "");
    for (const char* part : {"Examples:", "demo", "replay", "convert", "rules", "gestures", "actions", "shortcuts"})
        EXPECT_NE(help.out.find(part), std::string::npos) << part;
    EXPECT_EQ(help.status + kinesta.run({"rules", "check", "--help"}).status, 0);
    EXPECT_TRUE(kinesta.run({"--version"}).out.starts_with("kinesta "));
}

TEST(CommandLine, ListsTheVocabularyInDeclarationOrder) {
    const CommandRunner kinesta;
    for (const auto& [command, size, place, entry] :
         std::vector<std::tuple<std::string, std::size_t, std::size_t, std::string>>{
             {"gestures", 21, 0,
              R"~({"raw":"unconfigured","title":"Choose a gesture…","usesFingerCount":false,)~"
              R"~("repetitionCount":null,"physicalClickCount":null,"physicalClickPressure":null})~"},
             {"gestures", 21, 9,
              R"~({"raw":"doubleForceClick","title":"Double Force Click (stage 2)","usesFingerCount":true,)~"
              R"~("repetitionCount":2,"physicalClickCount":2,"physicalClickPressure":"force"})~"},
             {"actions", 11, 10, R"({"raw":"adjustVolume","title":"Adjust system volume"})"},
             {"shortcuts", 83, 31,
              R"({"category":"Window Tiling","title":"Arrange Left & Right","keyCode":123,)"
              R"("modifiers":28,"minimumMacOSMajorVersion":15,"label":"fn ⌃⇧Left"})"},
             {"shortcuts", 83, 82,
              R"({"category":"Web & Tabs","title":"Previous Tab","keyCode":48,"modifiers":12,)"
              R"("minimumMacOSMajorVersion":null,"label":"⌃⇧Tab"})"}}) {
        const auto list = nlohmann::ordered_json::parse(kinesta.run({command, "--json"}).out);
        EXPECT_EQ(list.size(), size) << command;
        EXPECT_EQ(list.at(place).dump(), entry);
    }
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
