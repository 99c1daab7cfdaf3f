#include <gtest/gtest.h>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

struct RulesCommand : ::testing::Test {
    CommandRunner kinesta;

    Ran rules(std::vector<std::string> arguments, const std::string& input = {}) const {
        arguments.insert(arguments.begin(), "rules");
        return kinesta.run(arguments, input);
    }
};

TEST_F(RulesCommand, ChecksEveryRule) {
    // The key modifiers is there twice: the later one counts.
    const std::string list = "[" + kTap + "," + kIncomplete + "," + kTap + "]";
    const std::string tap =
        R"({"id":"00000000-0000-4000-8000-00000000000A","name":"Paste","enabled":true,"ready":true,"conflict":true,)"
        R"("warning":{"title":"May conflict with Smart Zoom","detail":"macOS can use a two-finger double tap for Smart )"
        R"(Zoom. Change it in System Settings → Trackpad → Scroll & Zoom."},"summary":"⌘V","cue":"Insert"})"
        "\n";
    const std::string incomplete =
        R"({"id":"00000000-0000-4000-8000-00000000000B","name":"","enabled":true,"ready":false,"conflict":false,)"
        R"("warning":null,"summary":"Not configured","cue":null})"
        "\n";
    EXPECT_EQ(rules({"check", "-", "--json", "--system", "macos"}, list).out, tap + incomplete + tap);
    EXPECT_NE(rules({"check", "-", "--system", "kde"}, list).out.find("KDE Plasma can take a two-finger tap"),
              std::string::npos);
    const Ran unwarned = rules({"check", "-", "--system", "none"}, list);
    EXPECT_EQ(unwarned.out.find("two-finger"), std::string::npos);
    EXPECT_EQ(unwarned.status, 0);
    EXPECT_EQ(rules({"check", "-", "--system", "beos"}, list).status, 2);

    EXPECT_EQ(rules({"check", "-"}, "[]").out, "There are no rules.\n");
    EXPECT_EQ(rules({"check", "-", "--json"}, "[]").out, "");
    const std::string nasty =
        rule("0a", R"("name":"\u001b[2J\u009b31m\nred","gesture":"tipTapLeft")", R"("kind":"middleClick")");
    const std::string shown = rules({"check", "-"}, "[" + nasty + "]").out;
    EXPECT_EQ(shown.find('\x1b'), std::string::npos);
    EXPECT_NE(shown.find("·[2J·31m·red"), std::string::npos) << shown;
}

TEST_F(RulesCommand, NamesFilesThatItCannotUse) {
    const std::string huge = kinesta.folder.write("huge.json", "");
    std::filesystem::resize_file(huge, std::uintmax_t{1} << 40U);
    const std::string tooLarge = ": this is larger than 64 MiB, so it is no rule list\n";
    const std::string full = ": the file cannot be written: the disk is full";
    const std::string folder = kinesta.folder.path();
    for (const auto& [command, file, complaint] :
         std::vector<std::tuple<std::vector<std::string>, std::string, std::string>>{
             {{"rules", "check"}, huge, tooLarge},
             {{"rules", "check"}, "/dev/zero", tooLarge},
             {{"rules", "check"}, "/nowhere/rules.json", ": the file cannot be opened: No such file"},
             {{"rules", "check"}, folder, ": this is a folder"},
             {{"rules", "export"}, "/dev/full", full},
             {{"rules", "export"}, "/nowhere/at/all.json", ": "},
             {{"convert", recording("bcm5974.three-finger-click.events"), "-o"}, "/dev/full", full}}) {
        auto arguments = command;
        arguments.push_back(file);
        const Ran ran = kinesta.run(arguments);
        EXPECT_EQ(ran.status, 1) << file;
        EXPECT_TRUE(ran.err.starts_with(file + complaint)) << ran.err;
    }
}

}  // namespace
}  // namespace kinesta::testing
