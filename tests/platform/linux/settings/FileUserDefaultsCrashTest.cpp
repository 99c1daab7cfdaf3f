#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>

#include <filesystem>
#include <functional>
#include <set>

#include "platform/linux/settings/DefaultsFileCoding.h"
#include "platform/linux/settings/FileUserDefaults.h"
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
                EXPECT_NE(entry.path().extension(), ".tmp");
        }
        EXPECT_EQ(seen, outcomes) << start;
        EXPECT_GT(stop, 2 * 12) << start << ": fewer system calls cannot have saved it";
    }
}
