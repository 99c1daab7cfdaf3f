#include "platform/linux/settings/FileUserDefaults.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "support/TemporaryFolder.h"

using namespace kinesta;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

class FileUserDefaultsTest : public testing::Test {
  protected:
    FileUserDefaults open(const std::string& at) {
        return FileUserDefaults(at, [this](const std::string& problem) { problems.push_back(problem); });
    }
    FileUserDefaults open() { return open(path); }

    /// The files in the folder of the settings, without the lock.
    Names files(const fs::path& in = {}) const {
        Names names;
        for (const auto& entry : fs::directory_iterator(in.empty() ? fs::path(path).parent_path() : in))
            if (entry.path().extension() != ".lock")
                names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    static unsigned mode(const fs::path& file) {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0) << file;
        return status.st_mode & 0777u;
    }
    /// Whether exactly one problem was told since the last time, with `part` in it.
    bool onlyProblem(std::string_view part) {
        const auto told = std::exchange(problems, {});
        return told.size() == 1 && told[0].find(part) != std::string::npos;
    }

    TemporaryFolder folder;
    std::string path = folder / "a/b/defaults.json";
    Names problems;
};

/// A limit on the size of files, as a full disk has it: a part is written, then no more.
struct FullDisk {
    FullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{64, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before);
        ::signal(SIGXFSZ, handler);
    }
    rlimit before{};
    sighandler_t handler = ::signal(SIGXFSZ, SIG_IGN);
};

/// Permissions hold for root only while it is someone else.
struct Unprivileged {
    explicit Unprivileged(const Names& owned) {
        for (const auto& file : owned)
            EXPECT_TRUE(!isRoot || ::chown(file.c_str(), kNobody, kNobody) == 0) << file;
        EXPECT_TRUE(!isRoot || ::seteuid(kNobody) == 0);
    }
    ~Unprivileged() {
        if (isRoot && ::seteuid(0) != 0)
            std::abort();
    }
    static constexpr uid_t kNobody = 65534;
    bool isRoot = ::geteuid() == 0;
};

}  // namespace

TEST_F(FileUserDefaultsTest, storesEachChangeAtOnceForItsOwnerOnly) {
    const mode_t mask = ::umask(0);
    auto writer = open();
    EXPECT_FALSE(fs::exists(folder / "a"));  // loading leaves no trace
    writer.setInteger("i", 5);
    writer.setData("d", "\u00FF");
    writer.setReal("r", 1);
    EXPECT_EQ(open().values(), writer.values());
    writer.remove("i");
    writer.remove("never there");
    ::umask(mask);
    EXPECT_EQ(open().values(), (StoredValues{{"d", StoredData{"\u00FF"}}, {"r", 1.0}}));
    EXPECT_EQ(mode(path), 0600u);
    EXPECT_EQ(mode(folder / "a/b"), 0700u);
    EXPECT_EQ(mode(folder / "a"), 0700u);
    EXPECT_EQ(files(), (Names{"defaults.json"}));
    EXPECT_EQ(problems, Names());
}

TEST_F(FileUserDefaultsTest, mergesWhatOthersStoredAndKeepsWhatItDoesNotKnow) {
    auto one = open();
    auto two = open();
    one.setInteger("one", 1);
    two.setInteger("two", 2);
    one.setInteger("both", 1);
    two.remove("one");  // which it has not seen before
    EXPECT_FALSE(two.reload());
    EXPECT_TRUE(one.reload());
    EXPECT_FALSE(one.reload());
    EXPECT_EQ(one.values(), (StoredValues{{"both", std::int64_t{1}}, {"two", std::int64_t{2}}}));
    writeText(path, R"({"later":[1,null], "both":{"new":"form"}})");
    one.setInteger("one", 3);
    EXPECT_EQ(readText(path), "{\n  \"both\": {\"new\":\"form\"},\n  \"later\": [1,null],\n  \"one\": 3\n}\n");
    EXPECT_TRUE(one.contains("both") && !one.integer("both"));
    fs::remove(path);
    EXPECT_FALSE(one.reload());
    one.remove("later");
    EXPECT_EQ(readText(path), "{\n  \"both\": {\"new\":\"form\"},\n  \"one\": 3\n}\n");
    EXPECT_EQ(problems, Names());
}

TEST_F(FileUserDefaultsTest, setsADamagedFileAsideOnceAndNeverOverAnother) {
    open().setInteger("a", 1);
    auto running = open();
    const Names damaged{"", "{\"a\":1", "[]", "{\"a\":\"\xFF\"}", "{\"a\":{\"data\":[300]}}"};
    Names expected{"defaults.json"};
    for (std::size_t i = 0; i < damaged.size(); ++i) {
        SCOPED_TRACE(damaged[i]);
        writeText(path, damaged[i]);
        EXPECT_FALSE(running.reload());
        EXPECT_FALSE(running.reload());
        EXPECT_TRUE(onlyProblem(path));
        EXPECT_EQ(readText(path), damaged[i]);
        const std::string name = path + ".damaged-" + std::to_string(i + 1);
        if (i % 2 == 0) {
            EXPECT_EQ(open().values(), StoredValues());
            EXPECT_FALSE(fs::exists(path));
            EXPECT_TRUE(onlyProblem(name));
        }
        running.setInteger("b", 2);  // the values that were read before are not lost
        EXPECT_TRUE(i % 2 == 0 || onlyProblem(name));
        EXPECT_EQ(readText(path), "{\n  \"a\": 1,\n  \"b\": 2\n}\n");
        EXPECT_EQ(readText(name), damaged[i]);
        expected.push_back(fs::path(name).filename());
        EXPECT_EQ(files(), expected);
    }
    EXPECT_EQ(problems, Names());
}

TEST_F(FileUserDefaultsTest, leavesAloneWhatItCannotRead) {
    fs::create_directories(path);
    auto defaults = open();
    EXPECT_TRUE(onlyProblem("directory"));
    defaults.setInteger("a", 1);
    defaults.setInteger("b", 2);
    EXPECT_TRUE(onlyProblem("last only until"));
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_EQ(defaults.integer("a"), 1);
    fs::remove(path);
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    defaults.setInteger("c", 3);
    EXPECT_TRUE(onlyProblem("Not a regular file"));
    fs::remove(path);
    writeText(path, R"({"a":9,"theirs":true})");
    defaults.remove("c");
    EXPECT_EQ(readText(path), "{\n  \"a\": 1,\n  \"b\": 2,\n  \"theirs\": true\n}\n");
    EXPECT_EQ(problems, Names());
}

TEST_F(FileUserDefaultsTest, aFullDiskLosesNothingAndIsMadeUpForLater) {
    open().setInteger("old", 1);
    const std::string before = readText(path);
    auto defaults = open();
    {
        const FullDisk full;
        defaults.setString("long", std::string(1000, 'x'));
        defaults.setInteger("short", 2);
        EXPECT_EQ(readText(path), before);
        EXPECT_EQ(files(), (Names{"defaults.json"}));
        EXPECT_FALSE(defaults.reload());
        EXPECT_EQ(defaults.string("long"), std::string(1000, 'x'));
    }
    EXPECT_TRUE(onlyProblem("File too large"));
    defaults.remove("old");
    EXPECT_EQ(open().values(), (StoredValues{{"long", std::string(1000, 'x')}, {"short", std::int64_t{2}}}));
}

TEST_F(FileUserDefaultsTest, respectsPermissions) {
    open().setInteger("a", 1);
    const std::string before = readText(path);
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(folder / "a", fs::perms::all);
    const Unprivileged someone({folder / "a/b", path, path + ".lock"});

    fs::permissions(folder / "a/b", fs::perms(0500));
    auto defaults = open();
    defaults.setInteger("b", 2);
    EXPECT_TRUE(onlyProblem("Permission denied"));
    EXPECT_EQ(readText(path), before);
    EXPECT_EQ(files(), (Names{"defaults.json"}));
    fs::permissions(path, fs::perms(0600));
    writeText(path, "damaged");
    EXPECT_EQ(open().values(), StoredValues());
    EXPECT_TRUE(onlyProblem("cannot be set aside"));
    EXPECT_EQ(readText(path), "damaged");

    fs::permissions(folder / "a/b", fs::perms(0700));
    fs::permissions(path, fs::perms(0000));
    auto unreadable = open();
    EXPECT_TRUE(onlyProblem("Permission denied"));
    unreadable.setInteger("c", 3);
    EXPECT_TRUE(onlyProblem("Permission denied"));
    fs::permissions(path, fs::perms(0600));
    EXPECT_EQ(readText(path), "damaged");
}

TEST_F(FileUserDefaultsTest, savesThroughSymbolicLinks) {
    fs::create_directories(folder / "a/b");
    fs::create_directories(folder / "dotfiles");
    fs::create_symlink("../../dotfiles/link", path);
    fs::create_symlink(folder / "dotfiles/real/settings", folder / "dotfiles/link");  // whose folder does not exist
    open().setInteger("a", 1);
    open().setInteger("b", 2);
    EXPECT_TRUE(fs::is_symlink(path) && fs::is_symlink(folder / "dotfiles/link"));
    EXPECT_EQ(readText(folder / "dotfiles/real/settings"), "{\n  \"a\": 1,\n  \"b\": 2\n}\n");
    EXPECT_EQ(files(), (Names{"defaults.json"}));
    writeText(path, "damaged");
    open();
    EXPECT_TRUE(onlyProblem("settings.damaged-1"));
    EXPECT_EQ(files(folder / "dotfiles/real"), (Names{"settings.damaged-1"}));
    fs::remove(folder / "dotfiles/link");
    fs::create_symlink(path, folder / "dotfiles/link");
    open().setInteger("a", 1);
    EXPECT_EQ(problems.size(), 2u);
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST_F(FileUserDefaultsTest, processesThatWriteAtOnceLoseNothing) {
    constexpr int kWriters = 3, kWrites = 15;
    std::vector<pid_t> writers;
    for (int writer = 0; writer < kWriters; ++writer) {
        writers.push_back(::fork());
        if (writers.back() != 0)
            continue;
        auto defaults = open();
        for (int i = 0; i < kWrites; ++i) {
            defaults.setInteger(std::to_string(writer) + "." + std::to_string(i), i);
            defaults.setInteger("all", i);
        }
        ::_exit(problems.empty() ? 0 : 1);
    }
    auto reader = open();
    for (std::size_t done = 0; done < writers.size();) {
        reader.reload();  // always finds a whole file
        int status = 0;
        if (::waitpid(writers[done], &status, WNOHANG) == 0)
            continue;
        EXPECT_EQ(status, 0);
        ++done;
    }
    reader.reload();
    EXPECT_EQ(problems, Names());
    EXPECT_EQ(reader.values().size(), std::size_t{kWriters * kWrites + 1});
}

TEST(FileUserDefaults, isKeptInTheFolderForConfiguration) {
    ::setenv("HOME", "/h", 1);
    for (const std::string config : {"/c", "relative", ""}) {
        ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
        EXPECT_EQ(FileUserDefaults::defaultPath(), (config == "/c" ? config : "/h/.config") + "/kinesta/defaults.json");
    }
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(FileUserDefaults::defaultPath(), "/h/.config/kinesta/defaults.json");
    ::setenv("HOME", "", 1);
    EXPECT_EQ(FileUserDefaults::defaultPath().substr(0, 1), "/");
}
