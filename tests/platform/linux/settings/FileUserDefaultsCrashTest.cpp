#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>

#include <filesystem>
#include <functional>
#include <set>

#include "platform/linux/settings/DefaultsFileCoding.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "support/RunLoop.h"
#include "support/TemporaryFolder.h"

using namespace kinesta;
namespace fs = std::filesystem;

namespace {

/// Runs `work` in a child process and kills it at its `stop`-th stop: each system call stops it twice, before it takes
/// effect and after. Returns whether the child got that far; if not, it has completed the work.
bool killedAtStop(int stop, const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    for (; stop > 0 && WIFSTOPPED(status); --stop) {
        EXPECT_EQ(::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr), 0);
        ::waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status)) {
        EXPECT_EQ(status, 0);
        return false;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return true;
}

/// The settings at `path` as a newly started process finds them.
std::string found(const std::string& path) { return encodeDefaults(FileUserDefaults(path, {}).values()); }

}  // namespace

TEST(FileUserDefaultsCrash, LeavesTheOldOrTheNewContentAtEveryStep) {
    const std::string old = "{\n  \"foreign\": [1],\n  \"old\": 1\n}\n";
    const std::string changed = "{\n  \"foreign\": [1],\n  \"new\": 2,\n  \"old\": 1\n}\n";
    const std::set<std::string> fromOld{old, changed};
    const std::set<std::string> fromNothing{"{\n}\n", "{\n  \"new\": 2\n}\n"};
    for (const std::string start : {"file", "nothing", "link", "damaged"}) {
        const bool isDamaged = start == "damaged";
        const auto& outcomes = isDamaged || start == "nothing" ? fromNothing : fromOld;
        std::set<std::string> seen;
        bool wasKilled = true;
        int stop = 1;
        for (; wasKilled && !HasFailure(); ++stop) {
            SCOPED_TRACE(testing::Message() << "start " << start << ", stop " << stop);
            const TemporaryFolder folder;
            const std::string path = folder / "kinesta/defaults.json";
            if (start != "nothing")
                fs::create_directory(folder / "kinesta");
            if (start == "link")
                fs::create_symlink(folder / "target", path);
            if (start != "nothing")
                writeText(path, isDamaged ? "damaged" : old);
            wasKilled = killedAtStop(stop, [&] { FileUserDefaults(path, {}).setInteger("new", 2); });

            const std::string aside = path + ".damaged-1";
            EXPECT_TRUE(!isDamaged || readText(fs::exists(aside) ? aside : path) == "damaged");
            const std::string values = found(path);
            EXPECT_TRUE(wasKilled || values.find("new") != std::string::npos) << values;
            seen.insert(values);
            FileUserDefaults next(path, [](const std::string& problem) { ADD_FAILURE() << problem; });
            next.setInteger("next", 3);
            EXPECT_EQ(found(path), encodeDefaults(next.values()));
            EXPECT_EQ(fs::is_symlink(path), start == "link");
            for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
                EXPECT_TRUE(entry.path().filename() == "kinesta" || !entry.path().has_extension() ||
                            entry.path().extension() == ".json" || entry.path().extension() == ".lock" ||
                            entry.path().extension() == ".damaged-1")
                    << entry.path();
        }
        EXPECT_EQ(seen, outcomes) << start;
        EXPECT_GT(stop, 2 * 12) << start << ": fewer system calls cannot have saved it";
    }
}

// A power cut may leave an empty file or a part in place of what was not yet on the disk.
TEST(FileUserDefaultsCrash, TakesWhatADeadProcessStagedIfItIsWhole) {
    const std::string old = "{\n  \"a\": 1\n}\n", newer = "{\n  \"a\": 2\n}\n", newest = "{\n  \"a\": 3\n}\n";
    struct Case {
        std::string onItsWay, staged, expected;
    };
    for (const Case& c : {Case{newer, "-", newer}, Case{newer, newest, newest}, Case{newer, "{\n  \"a\"", newer},
                          Case{"", std::string(9, '\0'), old}, Case{"-", newest, newest}}) {
        for (const bool isRunning : {false, true}) {
            const TemporaryFolder folder;
            const std::string path = folder / "defaults.json";
            writeText(path, old);
            FileUserDefaults running(path, {});
            if (c.onItsWay != "-")
                writeText(path + ".tmp", c.onItsWay);
            if (c.staged != "-")
                writeText(path + ".next", c.staged);
            writeText(path + ".new", "{");
            if (isRunning)
                running.setInteger("b", 1);
            EXPECT_EQ(found(path).substr(0, 10), c.expected.substr(0, 10)) << c.staged;
            for (const char* suffix : {".new", ".next", ".tmp"})
                EXPECT_FALSE(fs::exists(path + suffix));
        }
    }
}

TEST(FileUserDefaultsCrash, LosesNoChangeInTheBackground) {
    const TemporaryFolder folder;
    const std::string path = folder / "defaults.json";
    constexpr int kChanges = 50;
    const auto change = [&](bool isKilled) {
        const pid_t child = ::fork();
        if (child == 0) {
            RunLoop loop;
            FileUserDefaults defaults(path, {});
            defaults.saveInBackground(loop, {});
            for (int i = 0; i < kChanges; ++i)
                defaults.setInteger(std::to_string(i), i);
            if (isKilled)
                ::raise(SIGKILL);  // wherever the disk is
            ::_exit(defaults.lastSaving() && !defaults.reload() && defaults.values().size() == kChanges ? 0 : 1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    };
    for (const bool isKilled : {true, false, true}) {
        fs::remove(path);
        EXPECT_EQ(change(isKilled), isKilled ? SIGKILL : 0);
        EXPECT_EQ(FileUserDefaults(path, {}).values().size(), std::size_t{kChanges});
    }
}
