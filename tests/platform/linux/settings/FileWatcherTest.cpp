#include "platform/linux/settings/FileWatcher.h"

#include <gtest/gtest.h>

#include "support/RunLoop.h"
#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

struct FileWatching : ::testing::Test {
    FileWatching() { fs::create_directories(folder / "config"); }

    /// Whether the watcher reports this content in time and the folder exists.
    bool sees(const std::string& expected) {
        bool isLate = false;
        const DelayedTask late = loop.after(std::chrono::seconds(20), [&] {
            isLate = true;
            loop.quit();
        });
        while ((content != expected || !fs::exists(folder / "config")) && !isLate)
            loop.run();
        return !isLate;
    }

    TemporaryFolder folder;
    std::string file = folder / "config/settings.json";
    RunLoop loop;
    std::string content = "not reported";
    std::function<void()> onChange = [this] {
        content = fs::exists(file) ? readText(file) : "";
        loop.quit();
    };
};

TEST_F(FileWatching, SeesEveryWayOfWriting) {
    fs::remove(folder / "config");
    const FileWatcher watcher(loop, file, onChange);
    ASSERT_TRUE(watcher.isWatching());
    EXPECT_EQ(fs::status(folder / "config").permissions(), fs::perms::owner_all);
    writeText(file, "new");
    EXPECT_TRUE(sees("new"));
    fs::rename(folder.write("other", "replaced"), file);
    EXPECT_TRUE(sees("replaced"));
    fs::remove(file);
    EXPECT_TRUE(sees(""));
}

TEST_F(FileWatching, FollowsFoldersThatAreReplaced) {
    const FileWatcher watcher(loop, file, onChange);
    for (const std::string text : {"once", "twice"}) {
        fs::rename(folder / "config", folder / text);
        EXPECT_TRUE(sees("")) << "gone with its folder";
        writeText(file, text);
        EXPECT_TRUE(sees(text));
    }
    fs::remove_all(folder / "config");
    EXPECT_TRUE(sees(""));
    fs::create_directories(folder / "config");
    writeText(file, "again");
    EXPECT_TRUE(sees("again"));
}

TEST_F(FileWatching, FollowsLinksThatArePointedElsewhere) {
    for (const char* place : {"first", "second"})
        fs::create_directories(folder / place);
    fs::create_symlink(folder / "first/settings.json", file);
    const FileWatcher watcher(loop, file, onChange);
    folder.write("first/settings.json", "behind the link");
    EXPECT_TRUE(sees("behind the link"));
    folder.write("second/settings.json", "elsewhere");
    fs::create_symlink(folder / "second/settings.json", folder / "config/new");
    fs::rename(folder / "config/new", file);
    EXPECT_TRUE(sees("elsewhere"));
    folder.write("second/settings.json", "there too");
    EXPECT_TRUE(sees("there too"));
}

}  // namespace
}  // namespace kinesta
