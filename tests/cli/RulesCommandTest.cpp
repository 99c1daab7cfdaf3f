#include <gtest/gtest.h>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

const std::string kTap = rule("0a", R"("name":"Paste","fingerCount":2,"gesture":"doubleTap")",
                              R"("kind":"keyboardShortcut","keyCode":9,"modifiers":1,"customCueLabel":" Insert ")");
const std::string kIncomplete = rule("0b", R"("name":"","gesture":"tipTapLeft")", R"("kind":"openURL")");

class RulesCommand : public ::testing::Test {
  protected:
    CommandRunner kinesta;
    std::string defaults() const { return (kinesta.folder.path() / "settings" / "defaults.json").string(); }
    /// The copies of previous lists that imports have kept.
    std::vector<std::string> copies() const {
        std::vector<std::string> kept;
        for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(defaults()).parent_path()))
            if (entry.path().filename().string().starts_with("rules-before-import"))
                kept.push_back(readText(entry.path()));
        return kept;
    }
};

TEST_F(RulesCommand, ChecksEveryRule) {
    // The key modifiers is there twice: the later one counts.
    const std::string rules = "[" + kTap + "," + kIncomplete + "," + kTap + "]";
    const Ran ran = kinesta.run({"rules", "check", "-", "--json", "--system", "macos"}, rules);
    const std::string tap =
        R"({"id":"00000000-0000-4000-8000-00000000000A","name":"Paste","enabled":true,"ready":true,"conflict":true,)"
        R"("warning":{"title":"May conflict with Smart Zoom","detail":"macOS can use a two-finger double tap for Smart )"
        R"(Zoom. Change it in System Settings → Trackpad → Scroll & Zoom."},"summary":"⌘V","cue":"Insert"})"
        "\n";
    const std::string incomplete =
        R"({"id":"00000000-0000-4000-8000-00000000000B","name":"","enabled":true,"ready":false,"conflict":false,)"
        R"("warning":null,"summary":"Not configured","cue":null})"
        "\n";
    EXPECT_EQ(ran.out, tap + incomplete + tap);
    EXPECT_EQ(ran.status, 0);

    const auto checkedFor = [&](const std::string& system) {
        return kinesta.run({"rules", "check", "-", "--system", system}, rules);
    };
    EXPECT_NE(checkedFor("kde").out.find("KDE Plasma can take a two-finger tap"), std::string::npos);
    EXPECT_EQ(checkedFor("none").out.find("two-finger"), std::string::npos);
    EXPECT_EQ(checkedFor("beos").status, 2);

    const Ran empty = kinesta.run({"rules", "check", "-"}, "[]");
    EXPECT_EQ(empty.out, "There are no rules.\n");
    EXPECT_EQ(kinesta.run({"rules", "check", "-", "--json"}, "[]").out, "");
    EXPECT_EQ(kinesta.run({"rules", "check", "/nowhere/rules.json"}).status, 1);
    EXPECT_EQ(kinesta.run({"rules", "check", kinesta.folder.path().string()}).status, 1);
}

TEST_F(RulesCommand, ImportsAllOrNothing) {
    const std::string first = kinesta.folder.write("first.json", "[" + kTap + "]");
    ASSERT_EQ(kinesta.run({"rules", "import", first}).status, 0);
    const std::string exported = kinesta.run({"rules", "export", "-"}).out;

    const std::string stored = readText(defaults());
    const Ran refused = kinesta.run({"rules", "import", "-"}, "[" + kTap + ",{}]");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("Nothing was changed."), std::string::npos);
    EXPECT_EQ(readText(defaults()), stored);

    const Ran imported = kinesta.run({"rules", "import", "-"}, "[" + kIncomplete + "]");
    EXPECT_EQ(imported.status, 0) << imported.err;
    EXPECT_NE(imported.out.find("Imported 1 rule, 0 of them on."), std::string::npos) << imported.out;
    EXPECT_NE(kinesta.run({"rules", "list", "--json"}).out.find(R"("enabled":false)"), std::string::npos);

    const std::string undo = "To undo: kinesta rules import ";
    const std::size_t at = imported.out.find(undo);
    ASSERT_NE(at, std::string::npos);
    std::string copy = imported.out.substr(at + undo.size());
    copy.pop_back();
    ASSERT_EQ(kinesta.run({"rules", "import", copy}).status, 0);
    EXPECT_EQ(kinesta.run({"rules", "export", "-"}).out, exported);
    EXPECT_EQ(copies().size(), 3U) << "imports within one second overwrite each other's copies";

    std::filesystem::remove(defaults() + ".lock");
    std::filesystem::create_directory(defaults() + ".lock");
    const Ran unsaved = kinesta.run({"rules", "import", "-"}, "[]");
    EXPECT_EQ(unsaved.status, 1);
    EXPECT_EQ(unsaved.err, defaults() + ".lock: Is a directory\nNothing was changed.\n");
    EXPECT_EQ(kinesta.run({"rules", "export", "-"}).out, exported);
    EXPECT_EQ(copies().size(), 3U);
}

TEST_F(RulesCommand, KeepsUnreadableRulesButDoesNotShowThem) {
    const std::string rules = kinesta.folder.write("rules.json", "[" + kTap + "]");
    const std::string exported = kinesta.folder / "exported.json";
    const std::string settings = std::filesystem::path(defaults()).parent_path();
    for (const std::string stored :
         {"5", R"([{"gesture":"futureTap"}])", R"("no JSON")", R"({"data":"[futureTap]"})"}) {
        SCOPED_TRACE(stored);
        std::filesystem::remove_all(settings);
        std::filesystem::create_directory(settings);
        writeText(defaults(), R"({"gestureRules.v1":)" + stored + "}");
        for (const std::string& file : {std::string("-"), exported}) {
            const Ran refused = kinesta.run({"rules", "export", file});
            EXPECT_EQ(refused.status, 1);
            EXPECT_EQ(refused.out, "");
            EXPECT_NE(refused.err.find("The stored rules cannot be read: line 1: "), std::string::npos) << refused.err;
        }
        EXPECT_FALSE(std::filesystem::exists(exported));
        EXPECT_EQ(kinesta.run({"rules", "list"}).status, 1);
        EXPECT_EQ(kinesta.run({"rules", "list"}).out, "");

        ASSERT_EQ(kinesta.run({"rules", "import", rules}).status, 0);
        ASSERT_EQ(copies().size(), 1U);
        EXPECT_NE(stored.find(copies().front()), std::string::npos) << copies().front();
    }
    writeText(defaults(), R"({"gestureRules.v1":[)" + kTap + "]}");
    const std::string plain = kinesta.run({"rules", "export", "-"}).out;
    writeText(defaults(), "{");
    EXPECT_EQ(kinesta.run({"rules", "export", "-"}).out, "") << "default rules exported for a damaged file";
    ASSERT_EQ(kinesta.run({"rules", "import", rules}).status, 0);
    EXPECT_EQ(kinesta.run({"rules", "export", "-"}).out, plain) << "a plain list is read";
}

TEST_F(RulesCommand, NamesTooLargeFilesAndFullDisks) {
    const std::string huge = kinesta.folder.write("huge.json", "");
    std::filesystem::resize_file(huge, std::uintmax_t{1} << 40U);
    for (const std::string& file : {huge, std::string("/dev/zero")}) {
        const Ran ran = kinesta.run({"rules", "check", file});
        EXPECT_EQ(ran.err, file + ": this is larger than 64 MiB, so it is no rule list\n");
    }
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"rules", "export", "/dev/full"},
          {"convert", recording("bcm5974.three-finger-click.events"), "-o", "/dev/full"}}) {
        const Ran full = kinesta.run(command);
        EXPECT_EQ(full.status, 1);
        EXPECT_EQ(full.err.rfind("/dev/full: the file cannot be written: the disk is full", 0), 0U) << full.err;
    }
}

TEST_F(RulesCommand, ImportsWhatItExported) {
    const std::string file = (kinesta.folder.path() / "rules.json").string();
    ASSERT_EQ(kinesta.run({"rules", "export", file}).status, 0);
    ASSERT_EQ(kinesta.run({"rules", "import", file}).status, 0);
    EXPECT_EQ(kinesta.run({"rules", "export", "-"}).out, readText(file));
    EXPECT_EQ(kinesta.run({"rules", "export", "/nowhere/at/all.json"}).status, 1);
}

TEST_F(RulesCommand, PrintsNoControlCharacters) {
    const std::string nasty = rule("0a", R"("name":"\u001b[2J\u009b31m\nred","fingerCount":2,"gesture":"doubleTap")",
                                   R"("kind":"middleClick")");
    const Ran ran = kinesta.run({"rules", "check", "-"}, "[" + nasty + "]");
    EXPECT_EQ(ran.out.find('\x1b'), std::string::npos);
    EXPECT_NE(ran.out.find("·[2J·31m·red"), std::string::npos) << ran.out;
}

}  // namespace
}  // namespace kinesta::testing
