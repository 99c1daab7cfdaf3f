#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "desktop/harness/BusPeer.h"
#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/LaunchedProgram.h"

namespace kinesta::testing {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

struct Opening : ::testing::Test {
    /// Makes a program the desktop's default for a MIME type.
    void handle(const std::string& kind, const LaunchedProgram& program) {
        const fs::path applications = folderOf("XDG_DATA_HOME") / "applications";
        fs::create_directories(applications);
        std::ofstream(applications / "handler.desktop")
            << "[Desktop Entry]\nType=Application\nName=Handler\nExec=" << program.path() << " %f\nMimeType=" << kind
            << ";\n";
        std::ofstream(folderOf("XDG_CONFIG_HOME") / "mimeapps.list") << "[Default Applications]\n"
                                                                     << kind << "=handler.desktop\n";
    }

    TestDesktop desktop;
    TemporaryFolder folder;
    DesktopActions actions;
    Workspace& workspace = actions.ports().workspace;
};

TEST_F(Opening, HandsAddressesFilesAndFoldersToTheirPrograms) {
    const LaunchedProgram browser(folder, "browser");
    setenv("BROWSER", browser.path().c_str(), 1);
    for (const char* address : {"HTTPS://kinesta.test/a?b=c&d=%20#e", "http://kinesta.test/'$x'"}) {
        workspace.openURL(address);
        EXPECT_EQ(browser.waitForArguments(), Words{address});
    }
    const LaunchedProgram editor(folder, "editor");
    handle("text/plain", editor);
    for (const char* name : {"two words.txt", "-dash.txt", "Zürich.txt", "it's \"odd\".txt", "a:b.txt"}) {
        const std::string file = folder.write(name, "text\n");
        workspace.openFile(file);
        EXPECT_EQ(editor.waitForArguments(), Words{file});
    }
    fs::current_path(folder.path());
    workspace.openFile("-dash.txt");
    EXPECT_EQ(editor.waitForArguments(), Words{folder.path() / "-dash.txt"});
    const LaunchedProgram fileManager(folder, "file-manager");
    handle("inode/directory", fileManager);
    workspace.openFile(folder.path());
    EXPECT_EQ(fileManager.waitForArguments(), Words{folder.path()});
}

TEST_F(Opening, LaunchesProgramsAndDesktopFilesWithTheirArguments) {
    const LaunchedProgram program(folder, "program");
    const Words odd{
        "plain", "two words", "", "\"quoted\" 'twice'", "$HOME `id` \\ %f ~", "line\nbreak", "Zürich → 東京",
        "-e",    "--",        "*"};
    workspace.launchApplication(program.path(), odd);
    EXPECT_EQ(program.waitForArguments(), odd);

    const fs::path place = folder.path() / "place";
    fs::create_directory(place);
    const std::string entry =
        folder.write("program.desktop", "[Desktop Entry]\nType=Application\nExec=\"" + program.path() +
                                            "\" --own %U \"a b\"\nPath=" + place.string() + "\n");
    workspace.launchApplication(entry, odd);
    Words all{"--own", "a b"};
    all.insert(all.end(), odd.begin(), odd.end());
    EXPECT_EQ(program.waitForArguments(), all);
    EXPECT_EQ(program.workingDirectory(), place.string() + "\n");

    const LaunchedProgram terminal(folder, "x-terminal-emulator");
    setenv("PATH", (folder.path().string() + ":" + std::getenv("PATH")).c_str(), 1);
    workspace.launchApplication(
        folder.write("terminal.desktop", "[Desktop Entry]\nType=Application\nExec=top -b\nTerminal=true\n"),
        {"-n", "1"});
    EXPECT_EQ(terminal.waitForArguments(), (Words{"-e", "top", "-b", "-n", "1"}));

    workspace.launchApplication(folder.path() / "missing.desktop", {});
    EXPECT_EQ(actions.lastMessage(),
              (folder.path() / "missing.desktop").string() + " cannot be read; choose the application again.");
}

TEST_F(Opening, AsksThePortalWhereThereIsNoXdgOpen) {
    setenv("PATH", folder.path().c_str(), 1);
    const std::string file = folder.write("a file", "");
    workspace.openFile(folder.path() / "missing");
    EXPECT_EQ(actions.lastMessage(),
              (folder.path() / "missing").string() +
                  " could not be opened: it is missing, or nothing here opens files; install xdg-utils.");
    workspace.openURL("http://kinesta.test/");
    EXPECT_EQ(actions.lastMessage(), "Nothing here opens addresses; install xdg-utils.");
    BusServices services;
    workspace.openURL("http://kinesta.test/");
    workspace.openFile(file);
    workspace.openFile(folder.path());
    EXPECT_EQ(services.requests(3),
              (Words{"url http://kinesta.test/", "file " + file, "file " + folder.path().string()}));
}

}  // namespace
}  // namespace kinesta::testing
