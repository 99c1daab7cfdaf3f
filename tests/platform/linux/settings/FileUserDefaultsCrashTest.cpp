#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>

#include <filesystem>
#include <functional>
#include <map>
#include <set>

#include "platform/linux/settings/DefaultsFileCoding.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "support/TemporaryFolder.h"

using namespace kinesta;
namespace fs = std::filesystem;

namespace {

/// Runs `work` in a child process and kills that at its `stop`-th stop; each system call stops once before it takes
/// effect and once after. Returns whether the child got so far; otherwise it has completed the work.
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
    EXPECT_TRUE(WIFSTOPPED(status)) << status;
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
    EXPECT_TRUE(WIFSIGNALED(status)) << status;
    return true;
}

/// The settings at `path` as a newly started process finds them.
std::string found(const std::string& path) { return encodeDefaults(FileUserDefaults(path, {}).values()); }

void save(const std::string& path) { FileUserDefaults(path, {}).setInteger("new", 2); }

}  // namespace

TEST(FileUserDefaultsCrash, aSaveKilledAtAnyStepLeavesTheOldOrTheNewContent) {
    const std::string before = "{\n  \"foreign\": [1],\n  \"old\": 1\n}\n";
    const std::string after = "{\n  \"foreign\": [1],\n  \"new\": 2,\n  \"old\": 1\n}\n";
    const std::string none = "{\n}\n";
    const std::string first = "{\n  \"new\": 2\n}\n";

    enum class Start { file, nothing, link, damaged };
    const std::map<Start, std::set<std::string>> cases{{Start::file, {before, after}},
                                                       {Start::nothing, {none, first}},
                                                       {Start::link, {before, after}},
                                                       {Start::damaged, {none, first}}};
    for (const auto& [start, outcomes] : cases) {
        std::set<std::string> seen;
        bool wasKilled = true;
        int stop = 1;
        for (; wasKilled && !HasFailure(); ++stop) {
            SCOPED_TRACE(testing::Message() << "start " << static_cast<int>(start) << ", stop " << stop);
            const TemporaryFolder folder;
            const std::string path = folder / "kinesta/defaults.json";
            if (start != Start::nothing)
                fs::create_directory(folder / "kinesta");
            if (start == Start::link)
                fs::create_symlink(folder / "target", path);
            if (start != Start::nothing)
                writeText(path, start == Start::damaged ? "damaged" : before);
            wasKilled = killedAtStop(stop, [&] { save(path); });

            const std::string damaged = path + ".damaged-1";
            if (start == Start::damaged) {
                EXPECT_EQ(readText(fs::exists(damaged) ? damaged : path), "damaged");
            }
            const std::string values = found(path);
            EXPECT_TRUE(outcomes.contains(values)) << values;
            EXPECT_TRUE(wasKilled || values.find("new") != std::string::npos) << values;
            seen.insert(values);
            FileUserDefaults next(path, [](const std::string& problem) { ADD_FAILURE() << problem; });
            EXPECT_EQ(encodeDefaults(next.values()), values);
            next.setInteger("next", 3);
            EXPECT_EQ(found(path), encodeDefaults(next.values()));
            EXPECT_EQ(fs::is_symlink(path), start == Start::link);
            for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
                EXPECT_NE(entry.path().extension(), ".tmp");
        }
        EXPECT_EQ(seen, outcomes) << static_cast<int>(start);
        EXPECT_GT(stop, 2 * 12) << static_cast<int>(
            start);  // fewer system calls cannot have done it: the child was not really stopped
    }
}
