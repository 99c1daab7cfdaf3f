#include <gtest/gtest.h>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

struct StoredRules : ::testing::Test {
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

TEST_F(StoredRules, ImportsAllOrNothing) {
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

TEST_F(StoredRules, KeepsUnreadableRulesButDoesNotShowThem) {
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

}  // namespace
}  // namespace kinesta::testing
