#include "platform/linux/settings/FileUserDefaults.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "support/RunLoop.h"
#include "support/TemporaryFolder.h"

using namespace kinesta;
namespace fs = std::filesystem;

namespace {

using Names = std::set<std::string>;

struct FileUserDefaultsTest : ::testing::Test {
    FileUserDefaults open() {
        return {path, [this](const std::string& problem) { problems.push_back(problem); }};
    }

    /// The files in the folder of the settings, without the lock.
    Names files() const {
        Names names;
        for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path()))
            if (entry.path().extension() != ".lock")
                names.insert(entry.path().filename());
        return names;
    }
    /// Whether exactly one problem was reported since the last call, and contains `part`.
    bool onlyProblem(std::string_view part) {
        const auto reported = std::exchange(problems, {});
        return reported.size() == 1 && reported[0].find(part) != std::string::npos;
    }

    void TearDown() override { EXPECT_EQ(problems, std::vector<std::string>()); }

    TemporaryFolder folder;
    std::string path = folder / "a/b/defaults.json";
    std::vector<std::string> problems;
};

}  // namespace

TEST_F(FileUserDefaultsTest, StoresEachChangeAtOnceForItsOwnerOnly) {
    const mode_t mask = ::umask(0);
    auto writer = open();
    EXPECT_FALSE(fs::exists(folder / "a"));
    writer.setInteger("i", 5);
    writer.setData("d", "\u00FF");
    EXPECT_EQ(open().values(), writer.values());
    writer.remove("i");
    writer.remove("missing");
    ::umask(mask);
    EXPECT_EQ(open().values(), (StoredValues{{"d", StoredData{"\u00FF"}}}));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    for (const char* parent : {"a", "a/b"})
        EXPECT_EQ(fs::status(folder / parent).permissions(), fs::perms(0700));
    EXPECT_EQ(files(), Names{"defaults.json"});
}

TEST_F(FileUserDefaultsTest, MergesWhatOthersStoredAndKeepsWhatItDoesNotKnow) {
    auto one = open();
    auto two = open();
    one.setInteger("one", 1);
    two.setInteger("two", 2);
    one.setInteger("both", 1);
    two.remove("one");  // which it has not seen before
    EXPECT_TRUE(two.reload()) << "its own change has brought in what others stored";
    EXPECT_FALSE(two.reload());
    EXPECT_TRUE(one.reload());
    EXPECT_FALSE(one.reload());
    EXPECT_EQ(one.values(), (StoredValues{{"both", std::int64_t{1}}, {"two", std::int64_t{2}}}));
    writeText(path, R"({"later":[1,null], "both":{"new":"form"}})");
    one.setInteger("one", 3);
    EXPECT_EQ(readText(path), "{\n  \"both\": {\"new\":\"form\"},\n  \"later\": [1,null],\n  \"one\": 3\n}\n");
    EXPECT_TRUE(one.contains("both") && !one.integer("both"));
    fs::remove(path);
    EXPECT_TRUE(one.reload());
    EXPECT_FALSE(one.reload());
    one.remove("later");
    EXPECT_EQ(readText(path), "{\n  \"both\": {\"new\":\"form\"},\n  \"one\": 3\n}\n");
}

TEST_F(FileUserDefaultsTest, SetsADamagedFileAsideOnceAndNeverOverAnother) {
    open().setInteger("a", 1);
    auto running = open();
    Names expected{"defaults.json"};
    int number = 0;
    for (const std::string damaged : {"", "{\"a\":1", "[]"}) {
        writeText(path, damaged);
        EXPECT_FALSE(running.reload());
        EXPECT_FALSE(running.reload());
        EXPECT_TRUE(onlyProblem(path));
        EXPECT_EQ(readText(path), damaged);
        const std::string aside = path + ".damaged-" + std::to_string(++number);
        if (damaged.empty()) {
            EXPECT_EQ(open().values(), StoredValues());
            EXPECT_FALSE(fs::exists(path));
            EXPECT_TRUE(onlyProblem(aside));
        }
        running.setInteger("b", 2);
        EXPECT_TRUE(damaged.empty() || onlyProblem(aside));
        EXPECT_EQ(readText(path), "{\n  \"a\": 1,\n  \"b\": 2\n}\n") << "with the values that were read before";
        EXPECT_EQ(readText(aside), damaged);
        expected.insert(fs::path(aside).filename());
        EXPECT_EQ(files(), expected);
    }
}

TEST_F(FileUserDefaultsTest, LeavesAloneWhatItCannotRead) {
    fs::create_directories(path);
    auto defaults = open();
    EXPECT_TRUE(onlyProblem("directory"));
    defaults.setInteger("a", 1);
    defaults.setInteger("b", 2);
    EXPECT_TRUE(onlyProblem("last only until"));
    EXPECT_EQ(defaults.integer("a"), 1);
    fs::remove(path);
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    defaults.setInteger("c", 3);
    EXPECT_TRUE(onlyProblem("Not a regular file"));
    fs::remove(path);
    writeText(path, "{");
    fs::resize_file(path, std::uintmax_t{2} << 30);
    defaults.setInteger("c", 4);
    EXPECT_TRUE(onlyProblem("Larger than 64 MiB"));
    fs::remove(path);
    writeText(path, R"({"a":9,"theirs":true})");
    defaults.remove("c");
    EXPECT_EQ(readText(path), "{\n  \"a\": 1,\n  \"b\": 2,\n  \"theirs\": true\n}\n");
}

// A limit of the size of files cuts a write short, like a full disk.
TEST_F(FileUserDefaultsTest, AFullDiskLosesNothing) {
    open().setInteger("old", 1);
    const std::string before = readText(path), text(1000, 'x');
    auto defaults = open();
    std::vector<std::string> solved;
    defaults.onProblemSolved([&solved](const std::string& problem) { solved.push_back(problem); });
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t unlimited = std::exchange(limit.rlim_cur, 64);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    defaults.setString("long", text);
    defaults.setInteger("short", 2);
    EXPECT_EQ(readText(path), before);
    EXPECT_EQ(files(), Names{"defaults.json"});
    EXPECT_FALSE(defaults.reload());
    EXPECT_EQ(defaults.string("long"), text);
    limit.rlim_cur = unlimited;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(solved, std::vector<std::string>()) << "reading is no saving";
    const auto reported = problems;
    EXPECT_TRUE(onlyProblem("File too large"));
    defaults.remove("old");
    EXPECT_EQ(solved, reported);
    EXPECT_EQ(open().values(), (StoredValues{{"long", text}, {"short", std::int64_t{2}}}));
}

TEST_F(FileUserDefaultsTest, RespectsPermissions) {
    open().setInteger("a", 1);
    for (const std::string& parent : {folder.path().string(), folder / "a"})
        fs::permissions(parent, fs::perms::all);
    // Root needs no permissions, so that it becomes an ordinary user.
    constexpr uid_t kUser = 65534;
    const bool isRoot = ::geteuid() == 0;
    for (const auto& file : {folder / "a/b", path, path + ".lock"})
        EXPECT_TRUE(!isRoot || ::chown(file.c_str(), kUser, kUser) == 0) << file;
    EXPECT_TRUE(!isRoot || ::seteuid(kUser) == 0);

    fs::permissions(folder / "a/b", fs::perms(0500));
    open().setInteger("b", 2);
    EXPECT_TRUE(onlyProblem("Permission denied"));
    EXPECT_EQ(files(), Names{"defaults.json"});
    writeText(path, "damaged");
    EXPECT_EQ(open().values(), StoredValues());
    EXPECT_TRUE(onlyProblem("cannot be set aside"));

    fs::permissions(folder / "a/b", fs::perms(0700));
    fs::permissions(path, fs::perms(0000));
    open().setInteger("c", 3);
    EXPECT_EQ(std::exchange(problems, {}).size(), 2U) << "neither read nor stored";
    fs::permissions(path, fs::perms(0600));
    EXPECT_EQ(readText(path), "damaged");
    EXPECT_TRUE(!isRoot || ::seteuid(0) == 0);
}

TEST_F(FileUserDefaultsTest, SavesThroughSymbolicLinks) {
    for (const char* parent : {"a/b", "dotfiles"})
        fs::create_directories(folder / parent);
    fs::create_symlink("../../dotfiles/link", path);
    fs::create_symlink(folder / "dotfiles/real/settings", folder / "dotfiles/link");  // whose folder does not exist
    open().setInteger("a", 1);
    open().setInteger("b", 2);
    EXPECT_TRUE(fs::is_symlink(path) && fs::is_symlink(folder / "dotfiles/link"));
    EXPECT_EQ(readText(folder / "dotfiles/real/settings"), "{\n  \"a\": 1,\n  \"b\": 2\n}\n");
    EXPECT_EQ(files(), Names{"defaults.json"});
    writeText(path, "damaged");
    open();
    EXPECT_TRUE(onlyProblem("settings.damaged-1"));
    EXPECT_TRUE(fs::exists(folder / "dotfiles/real/settings.damaged-1"));
    fs::remove(folder / "dotfiles/link");
    fs::create_symlink(path, folder / "dotfiles/link");  // a circle
    open().setInteger("a", 1);
    EXPECT_EQ(std::exchange(problems, {}).size(), 2U);
}

TEST_F(FileUserDefaultsTest, ProcessesThatWriteAtOnceLoseNothing) {
    // In memory where there is such a folder: a disk may stand still for longer than a writer waits for the others.
    if (::access("/dev/shm", W_OK) == 0)
        ::setenv("TMPDIR", "/dev/shm", 1);
    const TemporaryFolder inMemory;
    ::unsetenv("TMPDIR");
    path = inMemory / "defaults.json";
    constexpr int kWriters = 3, kWrites = 40;
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
    for (const pid_t writer : writers) {
        int status = 0;
        while (::waitpid(writer, &status, WNOHANG) == 0)
            reader.reload();  // always finds a whole file
        EXPECT_EQ(status, 0);
    }
    reader.reload();
    EXPECT_EQ(reader.values().size(), std::size_t{kWriters * kWrites + 1});
}

TEST(FileUserDefaults, AreInTheFolderForConfiguration) {
    ::setenv("HOME", "/h", 1);
    for (const std::string config : {"/c", "relative", ""}) {
        ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
        EXPECT_EQ(FileUserDefaults::defaultPath(), (config == "/c" ? config : "/h/.config") + "/kinesta/defaults.json");
    }
    ::unsetenv("XDG_CONFIG_HOME");
    ::setenv("HOME", "", 1);
    EXPECT_EQ(FileUserDefaults::defaultPath().substr(0, 1), "/");
}

TEST_F(FileUserDefaultsTest, KeepsAndStoresLaterWhatTheDiskRefusesInTheBackground) {
    open().setInteger("old", 0);
    RunLoop loop;
    auto defaults = open();
    defaults.saveInBackground(loop, {});
    fs::create_directory(path + ".tmp");  // in the way of what comes from the disk
    defaults.setInteger("a", 1);
    EXPECT_TRUE(DurableFile::at(path)->lock().isValue()) << "the run has not ended";
    fs::remove(path + ".tmp");
    fs::remove(path + ".next");
    defaults.setInteger("b", 2);  // before the main thread has heard of it
    EXPECT_TRUE(onlyProblem("defaults.json"));
    EXPECT_TRUE(defaults.lastSaving().isValue());
    EXPECT_EQ(defaults.values().size(), 3U);
    EXPECT_EQ(open().values(), defaults.values());
}
