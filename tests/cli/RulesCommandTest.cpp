#include <gtest/gtest.h>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

const std::string kTap = rule("0a", R"("name":"Paste","fingerCount":2,"gesture":"doubleTap")",
                              R"("kind":"keyboardShortcut","keyCode":9,"modifiers":1,"customCueLabel":" Insert ")");
const std::string kIncomplete = rule("0b", R"("name":"","gesture":"tipTapLeft")", R"("kind":"openURL")");

struct RulesCommand : ::testing::Test {
    CommandRunner kinesta;
    const std::filesystem::path settings = kinesta.folder.path() / "settings";
    const std::string defaults = settings / "defaults.json";

    Ran rules(std::vector<std::string> arguments, const std::string& input = {}) const {
        arguments.insert(arguments.begin(), "rules");
        return kinesta.run(arguments, input);
    }
    std::string exported() const { return rules({"export", "-"}).out; }
    /// The copies of previous lists that imports have kept.
    std::vector<std::string> copies() const {
        std::vector<std::string> kept;
        for (const auto& entry : std::filesystem::directory_iterator(settings))
            if (entry.path().filename().string().starts_with("rules-before-import"))
                kept.push_back(readText(entry.path()));
        return kept;
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

TEST_F(RulesCommand, ImportsAllOrNothing) {
    const std::string file = kinesta.folder.write("first.json", "[" + kTap + "]");
    ASSERT_EQ(rules({"import", file}).status, 0);
    ASSERT_EQ(rules({"export", file}).status, 0);
    const std::string first = readText(file), stored = readText(defaults);
    ASSERT_EQ(rules({"import", file}).status, 0);
    EXPECT_EQ(exported(), first) << "imports what it exported";

    const Ran refused = rules({"import", "-"}, "[" + kTap + ",{}]");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("Nothing was changed."), std::string::npos);
    EXPECT_EQ(readText(defaults), stored);

    const Ran imported = rules({"import", "-"}, "[" + kIncomplete + "]");
    EXPECT_EQ(imported.status, 0) << imported.err;
    EXPECT_NE(imported.out.find("Imported 1 rule, 0 of them on."), std::string::npos) << imported.out;
    EXPECT_NE(rules({"list", "--json"}).out.find(R"("enabled":false)"), std::string::npos);

    const std::string undo = "To undo: kinesta rules import ";
    const std::size_t at = imported.out.find(undo);
    ASSERT_NE(at, std::string::npos);
    std::string copy = imported.out.substr(at + undo.size());
    copy.pop_back();
    ASSERT_EQ(rules({"import", copy}).status, 0);
    EXPECT_EQ(exported(), first);
    EXPECT_EQ(copies().size(), 4U) << "imports within one second overwrite each other's copies";

    std::filesystem::remove(defaults + ".lock");
    std::filesystem::create_directory(defaults + ".lock");
    const Ran unsaved = rules({"import", "-"}, "[]");
    EXPECT_EQ(unsaved.status, 1);
    EXPECT_EQ(unsaved.err, defaults + ".lock: Is a directory\nNothing was changed.\n");
    EXPECT_EQ(exported(), first);
    EXPECT_EQ(copies().size(), 4U);
}

TEST_F(RulesCommand, KeepsUnreadableRulesButDoesNotShowThem) {
    const std::string file = kinesta.folder.write("rules.json", "[" + kTap + "]");
    const std::string target = kinesta.folder / "exported.json";
    for (const std::string stored :
         {"5", R"([{"gesture":"futureTap"}])", R"("no JSON")", R"({"data":"[futureTap]"})"}) {
        SCOPED_TRACE(stored);
        std::filesystem::remove_all(settings);
        std::filesystem::create_directory(settings);
        writeText(defaults, R"({"gestureRules.v1":)" + stored + "}");
        for (const auto& command : {std::vector<std::string>{"export", "-"}, {"export", target}, {"list"}}) {
            const Ran refused = rules(command);
            EXPECT_EQ(refused.status, 1);
            EXPECT_EQ(refused.out, "");
            EXPECT_NE(refused.err.find("The stored rules cannot be read: line 1: "), std::string::npos) << refused.err;
        }
        EXPECT_FALSE(std::filesystem::exists(target));
        ASSERT_EQ(rules({"import", file}).status, 0);
        ASSERT_EQ(copies().size(), 1U);
        EXPECT_NE(stored.find(copies().front()), std::string::npos) << copies().front();
    }
    writeText(defaults, R"({"gestureRules.v1":[)" + kTap + "]}");
    const std::string plain = exported();
    writeText(defaults, "{");
    EXPECT_EQ(exported(), "") << "default rules exported for a damaged file";
    ASSERT_EQ(rules({"import", file}).status, 0);
    EXPECT_EQ(exported(), plain) << "a plain list is read";
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
