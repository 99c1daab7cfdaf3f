#include "platform/linux/launching/DesktopEntry.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

using Words = std::vector<std::string>;

struct DesktopEntryTest : ::testing::Test {
    Result<DesktopEntry> read(const std::string& content, const std::string& locale = "C") {
        writeText(path, content);
        return DesktopEntry::read(path, locale);
    }
    /// The command of an entry with this Exec line.
    Words command(const std::string& exec) {
        const auto entry = read("[Desktop Entry]\nType=Application\nName=Some Name\nExec=" + exec + "\n");
        return entry ? entry->command : Words{"(refused)"};
    }

    TemporaryFolder folder;
    std::string path = folder / "app.desktop";
};

TEST_F(DesktopEntryTest, DividesItsCommandAsWritten) {
    const std::vector<std::pair<const char*, Words>> rows{
        {"  app   --a\t-b ", {"app", "--a", "-b"}},
        {R"("/opt/My App/app" --title "two  words" "")", {"/opt/My App/app", "--title", "two  words", ""}},
        {R"(app a"b c"d)", {"app", "ab cd"}},
        {R"(app "say \\"hi\\" for \\$5 \\`now\\` \\\\")", {"app", R"(say "hi" for $5 `now` \)"}},
        {R"(app 'single "quoted" $x')", {"app", R"(single "quoted" $x)"}},
        {R"(app one\stwo "tab\tbed" "keeps \\x")", {"app", "one", "two", "tab\tbed", R"(keeps \x)"}},
        {R"(app "never ends)", {"(refused)"}},
        {"", {"(refused)"}},
        {"%U", {"(refused)"}},
        {R"("" app)", {"(refused)"}},
    };
    for (const auto& [exec, expected] : rows)
        EXPECT_EQ(command(exec), expected) << exec;
}

TEST_F(DesktopEntryTest, LeavesOutThePlacesOfDocuments) {
    for (const char* code : {"%f", "%F", "%u", "%U", "%d", "%D", "%n", "%N", "%v", "%m", "%x"})
        EXPECT_EQ(command(std::string("app ") + code + " end"), (Words{"app", "end"})) << code;
    EXPECT_EQ(command("app --file=%f 100%% %%U %"), (Words{"app", "--file=", "100%", "%U", "%"}));
    EXPECT_EQ(command("app --name %c --in=%k"), (Words{"app", "--name", "Some Name", "--in=" + path}));
    EXPECT_EQ(command("app %i end"), (Words{"app", "end"})) << "without an icon";
    EXPECT_EQ(read("[Desktop Entry]\nType=Application\nIcon=my icon\nExec=app %i end")->command,
              (Words{"app", "--icon", "my icon", "end"}));
}

TEST_F(DesktopEntryTest, ReadsItsOwnGroupAlone) {
    const std::string content =
        "# a comment = not a key\r\n\r\n[Desktop Entry]\r\n Type = Application \r\nExec=app %c\r\nExec=second\r\n"
        "Path=/some/where\r\nTerminal=true\r\nName=Plain\r\nName[de]=Deutsch\r\nName[de_AT]=Österreichisch\r\n"
        "Name[sr@latin]=Srpski\r\n[Desktop Action new]\r\nExec=other\r\nTerminal=false\r\nName[fr]=Neu\r\n";
    const auto entry = read(content);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->command, (Words{"app", "Plain"}));
    EXPECT_EQ(entry->workingDirectory, "/some/where");
    EXPECT_TRUE(entry->runsInTerminal);
    const std::vector<std::pair<const char*, const char*>> names{
        {"de_AT.UTF-8", "Österreichisch"}, {"de_DE.UTF-8", "Deutsch"}, {"de", "Deutsch"},
        {"sr_RS.UTF-8@latin", "Srpski"},   {"sr_RS", "Plain"},         {"", "Plain"}};
    for (const auto& [locale, name] : names)
        EXPECT_EQ(read(content, locale)->command.back(), name) << locale;
    EXPECT_EQ(read(content, "fr")->command.back(), "Plain") << "another group names it so";
}

TEST_F(DesktopEntryTest, SaysWhatIsWrong) {
    EXPECT_EQ(read("[Desktop Entry]\nType=Link\nExec=app\n").error().message,
              path + " does not say how to start an application; choose another file.");
    EXPECT_FALSE(read("Type=Application\nExec=app\n")) << "outside of the group";
    EXPECT_FALSE(read(std::string("\x7F\x45LF\0\0=\xFF\xFE", 10)));
    EXPECT_EQ(DesktopEntry::read(path + "x", "C").error().message,
              path + "x cannot be read; choose the application again.");
}

}  // namespace
}  // namespace kinesta
