#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <future>

#include "desktop/harness/LaunchedProgram.h"
#include "desktop/harness/ProcessFigures.h"
#include "platform/linux/launching/PosixProcessLauncher.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "platform/linux/process/UserDatabase.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

struct Launching : ::testing::Test {
    /// The output of a launched shell that runs this text.
    std::string outputOf(const std::string& text) {
        const std::string file = folder / "output";
        launcher.launch("/bin/sh", {"-c", "(" + text + ") > " + file + ".new 2>&1; mv " + file + ".new " + file});
        EXPECT_TRUE(eventually([&] { return fs::exists(file); }));
        std::string content = readText(file);
        fs::remove(file);
        return content;
    }

    TemporaryFolder folder;
    PosixProcessLauncher launcher;
};

long openDescriptors() { return ProcessFigures(getpid()).descriptors; }

TEST_F(Launching, GivesProgramsAFreshStart) {
    setenv("KINESTA_TEST", "inherited", 1);          // before the launcher's thread, which reads the environment, runs
    const FileDescriptor leaky(dup(STDERR_FILENO));  // without close-on-exec
    ASSERT_TRUE(leaky);
    sigset_t blocked;
    sigset_t before;
    sigfillset(&blocked);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(outputOf("exec ls /proc/self/fd"), "0\n1\n2\n3\n") << "3 is the folder that ls reads";
    constexpr std::uint64_t kOwnedByTheLibrary = 0x180000000;  // the C library's own two signals, always ignored
    const std::uint64_t ignored = std::stoull(outputOf("sed -n 's/SigIgn:.//p' /proc/self/status"), nullptr, 16);
    EXPECT_EQ(ignored & ~kOwnedByTheLibrary, 0U);
    EXPECT_EQ(outputOf("readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2; grep SigBlk /proc/self/status; "
                       "test $(cut -d' ' -f6 /proc/$$/stat) = $$ && echo own session; echo $KINESTA_TEST; pwd"),
              "/dev/null\n/dev/null\n/dev/null\nSigBlk:\t0000000000000000\nown session\ninherited\n" +
                  fs::current_path().string() + "\n");
    std::signal(SIGPIPE, pipeBefore);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(Launching, ReapsItsOwnChildrenAndNoOthers) {
    while (waitpid(-1, nullptr, 0) > 0) {
        // Reap the children of earlier tests, whose launchers are gone.
    }
    const auto descriptors = openDescriptors();
    const pid_t other = fork();
    if (other == 0)
        _exit(7);
    for (int i = 0; i < 200; ++i)
        launcher.launch("/bin/true", {});
    EXPECT_EQ(outputOf("echo after them all"), "after them all\n");
    int status = 0;
    EXPECT_TRUE(eventually([&] { return waitpid(other, &status, WNOHANG) == other; }));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    const auto hasNoChildren = [] {
        siginfo_t info{};
        return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) != 0;
    };
    EXPECT_TRUE(eventually(hasNoChildren)) << "zombies";
    EXPECT_TRUE(eventually([&] { return openDescriptors() == descriptors + 1; }))
        << openDescriptors() - descriptors << " more than before, one of them the launcher's own";
}

TEST_F(Launching, ReportsWhatCannotBeStartedAndDoesNotWait) {
    std::promise<std::string> complaint;
    PosixProcessLauncher::Options options;
    options.log = [&](const std::string& line) { complaint.set_value(line); };
    PosixProcessLauncher other(options);
    const std::string missing = folder.path() / "missing";
    other.launch(missing, {"argument"});
    auto line = complaint.get_future();
    ASSERT_EQ(line.wait_for(kPatience), std::future_status::ready);
    EXPECT_EQ(line.get(), missing + " could not be started: No such file or directory.");
    // It does not wait for a program that keeps running.
    const std::string fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    launcher.launch("/bin/sh", {"-c", "read line < '" + fifo + "'"});
    EXPECT_EQ(outputOf("echo still launching"), "still launching\n");
    std::ofstream(fifo) << "end\n";
}

TEST_F(Launching, LetsProgramsSurviveUsAndWriteIntoTheLog) {
    const std::string fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const FileDescriptor log(open((folder / "log").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(mkfifo((folder / "end").c_str(), 0600), 0);
    const std::string holding = "echo word; read line < '" + (folder / "end") + "'";
    std::array<int, 2> pipe{};
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC), 0);
    const LaunchedProgram result(folder);
    const std::string command = "echo out; echo err >&2; read line < '" + fifo + "'; '" + result.path() + "' $line";
    // Each is launched from its own process, which ends at once.
    for (const auto& [output, text] : {std::pair{pipe[1], holding.c_str()}, {log.number(), command.c_str()}}) {
        const pid_t us = fork();
        if (us == 0) {
            dup2(output, STDOUT_FILENO);
            PosixProcessLauncher::Options options;
            options.output = PosixProcessLauncher::Output::log;
            PosixProcessLauncher(options).launch("/bin/sh", {"-c", text});
            _exit(0);
        }
        int status = -1;
        ASSERT_EQ(waitpid(us, &status, 0), us);
        ASSERT_EQ(status, 0);
    }
    close(pipe[1]);
    char byte = 0;
    EXPECT_EQ(read(pipe[0], &byte, 1), 0) << "the reader of our output waits for us alone";
    close(pipe[0]);
    std::ofstream(folder / "end") << "end\n";
    std::ofstream(fifo) << "alive\n";
    EXPECT_EQ(result.waitForArguments(), Words{"alive"});
    EXPECT_EQ(readText(folder / "log"), "out\nerr\n");
}

TEST_F(Launching, RunsShellCommandsWithZshOrElseTheLoginShell) {
    const LaunchedProgram zsh(folder, "zsh");
    const LaunchedProgram login(folder, "login-shell");
    const Words arguments{"-lc", "  echo \"a  b\" | cat; ls ~\n"};
    PosixProcessLauncher withZsh({zsh.path(), [&] { return login.path(); }, {}});
    withZsh.launch("/bin/zsh", arguments);
    EXPECT_EQ(zsh.waitForArguments(), arguments);
    PosixProcessLauncher withoutZsh({folder.path() / "missing", [&] { return login.path(); }, {}});
    withoutZsh.launch("/bin/zsh", arguments);
    EXPECT_EQ(login.waitForArguments(), arguments);

    // With the real login shell of the user who runs this test.
    PosixProcessLauncher real({folder.path() / "missing", {}, {}});
    real.launch("/bin/zsh", {"-lc", "'" + login.path() + "' done"});
    EXPECT_EQ(login.waitForArguments(), Words{"done"});
    EXPECT_EQ(chosenShell("/bin/sh", "/bin/bash"), "/bin/sh");
    for (const char* none : {"", "sh", "/usr/sbin/nologin", "/bin/false", "/no/such/shell"}) {
        EXPECT_EQ(chosenShell(none, "/bin/bash"), "/bin/bash") << none;
        EXPECT_EQ(chosenShell(none, none), "/bin/sh") << none;
    }
}

TEST_F(Launching, KnowsHomes) {
    const passwd* user = getpwuid(getuid());
    const std::string own = user != nullptr ? user->pw_name : "no such user";
    const PosixHomeFolders homes;
    setenv("HOME", "/somewhere/else", 1);
    EXPECT_EQ(homes.homeFolder(""), "/somewhere/else");
    for (const char* useless : {"", "relative"}) {
        setenv("HOME", useless, 1);
        EXPECT_EQ(homes.homeFolder(""), homes.homeFolder(own));
    }
    EXPECT_EQ(homes.homeFolder("root"), "/root");
    EXPECT_EQ(homes.homeFolder("no such user"), std::nullopt);
}

}  // namespace
}  // namespace kinesta::testing
