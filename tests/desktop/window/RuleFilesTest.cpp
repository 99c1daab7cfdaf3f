#include <sys/stat.h>

#include <set>

#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct RuleFiles : OpenWindow {
    static std::string exported() {
        run("rules export - > exported.json");
        return readText("exported.json");
    }
    /// The lists that imports have replaced.
    static std::set<std::filesystem::path> copies() {
        std::set<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::directory_iterator(folderOf("XDG_CONFIG_HOME") / "kinesta"))
            if (entry.path().filename().string().starts_with("rules-before-import-"))
                found.insert(entry.path());
        return found;
    }
    /// Answers the dialog behind the button with a file in the home folder.
    void choose(const std::string& button, const std::string& dialog, const std::string& file) {
        program->click("push button", button);
        program->await("dialog", dialog);
        ASSERT_TRUE(eventually([&] { return program->focus().value_or(Program::Node{}).role == "text"; }));
        Program::press("ctrl+a");
        Program::type((folderOf("HOME") / file).string());
        Program::press("Return");
        ASSERT_TRUE(program->awaitGone("dialog", dialog));
    }
};

TEST_F(RuleFiles, AreExportedAndImportedByDialogAndTheReplacedListIsKept) {
    open({rule("One"), rule("Two", "doubleTap")});
    program->listen();
    Program::press("ctrl+comma");
    choose("Export…", "Export rules", "out");
    EXPECT_TRUE(program->says("Exported to “out.json”"));
    const std::string before = exported();
    const auto former = copies();
    EXPECT_EQ(readText("out.json"), before);

    writeText("new.json", json::array({rule("New", "tripleTap")}).dump());
    choose("Import…", "Import rules", "new.json");
    program->await("label", "Imported 1 rule");
    EXPECT_EQ(names(), "New ");
    auto kept = copies();
    std::erase_if(kept, [&](const auto& copy) { return former.contains(copy); });
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(readText(*kept.begin()), before);
    const std::string place = "The rules before the import are kept in " + kept.begin()->string();
    EXPECT_TRUE(program->says(place + "\nImported 1 rule"));
    program->await("label", place);
    program->click("list item", "New");
    Program::press("shift+Tab shift+Tab shift+Tab shift+Tab");  // back over the start to what comes last
    const auto undo = program->await("push button", "Undo");
    EXPECT_TRUE(program->becomes(undo, Program::focused));
    Program::press("Tab ctrl+z");
    EXPECT_TRUE(becomesNamed("One Two "));
    EXPECT_TRUE(program->awaitGone("push button", "Undo"));
    EXPECT_EQ(exported(), before);
    Program::press("ctrl+shift+z");
    EXPECT_TRUE(becomesNamed("New "));
    Program::press("ctrl+z");
    EXPECT_TRUE(becomesNamed("One Two "));

    Program::press("ctrl+comma");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    writeText("huge.json", "[");
    std::filesystem::resize_file("huge.json", std::uintmax_t{2} << 30U);
    writeText("broken.json", "[\n{\"gesture\": \"swirl\"}]");
    for (const auto& [file, why] :
         {std::pair{"broken.json", "line 2: rule 1: \"gesture\" is \"swirl\", which is not a gesture"},
          {"pipe", "this is a pipe or a device, not a rule file"},
          {"huge.json", "this is larger than 64 MiB, so it is no rule list"}}) {
        SCOPED_TRACE(file);
        choose("Import…", "Import rules", file);
        const std::string sentence = "“" + std::string(file) + "” could not be read: " + why + ". Nothing was changed.";
        EXPECT_TRUE(program->says(sentence));
        program->await("label", sentence);
        EXPECT_EQ(exported(), before);
        EXPECT_EQ(copies().size(), former.size() + 1);
    }
}

}  // namespace
}  // namespace kinesta::testing
