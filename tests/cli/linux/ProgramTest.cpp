#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

#include "cli/CommandRunner.h"

namespace kinesta::testing {
namespace {

using Clock = std::chrono::steady_clock;

const std::string kKinesta = "'" KINESTA_PROGRAM "' ";

/// A shell command on its own terminal, killed if the test ends first.
class Program {
  public:
    explicit Program(const std::string& command) {
        const winsize size{.ws_row = 40, .ws_col = 100, .ws_xpixel = 0, .ws_ypixel = 0};
        m_child = ::forkpty(&m_terminal, nullptr, nullptr, &size);
        if (m_child == 0) {
            ::execl("/bin/bash", "bash", "-c", command.c_str(), nullptr);
            ::_exit(127);
        }
    }
    ~Program() {
        if (m_child > 0) {
            ::kill(m_child, SIGKILL);
            ::waitpid(m_child, nullptr, 0);
        }
        ::close(m_terminal);
    }

    /// Reads until `text` appears, the output ends, or the time is up. Returns whether it appeared.
    bool waitFor(const std::string& text) {
        const auto end = Clock::now() + std::chrono::seconds(20);
        while (output.find(text) == std::string::npos) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
            pollfd readable{m_terminal, POLLIN, 0};
            char block[4096];
            if (left <= 0 || ::poll(&readable, 1, static_cast<int>(left)) <= 0)
                return false;
            const ssize_t count = ::read(m_terminal, block, sizeof block);
            if (count <= 0)  // a terminal whose program has ended answers EIO
                return false;
            output.append(block, static_cast<std::size_t>(count));
        }
        return true;
    }

    void type(const std::string& keys) const { EXPECT_EQ(::write(m_terminal, keys.data(), keys.size()), keys.size()); }
    void signal(int number) const { ::kill(m_child, number); }

    /// Waits for the end, reads the remaining output, and returns the status of waitpid().
    int wait() {
        waitFor("text that no program says");
        int status = -1;
        ::waitpid(std::exchange(m_child, -1), &status, 0);
        return status;
    }

    std::string output;

    /// What a command shows from its beginning to its end.
    static std::string outputOf(const std::string& command) {
        Program program(command);
        program.wait();
        return program.output;
    }

  private:
    pid_t m_child = -1;
    int m_terminal = -1;
};

TEST(Program, DemonstratesEveryGestureAndRestoresTheTerminal) {
    const auto began = Clock::now();
    Program demo("exec " + kKinesta + "demo");
    const int status = demo.wait();
    EXPECT_LT(Clock::now() - began, std::chrono::seconds(20));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    for (const char* text : {"2-finger single tap", "3-finger single tap", "2-finger single soft click (stage 1)",
                             "3-finger single soft click (stage 1)", "double tip-tap right",
                             "2-finger right edge slide up", "top left clockwise circle", "Middle click", "●", "⠁"})
        EXPECT_NE(demo.output.find(text), std::string::npos) << text;
    const std::size_t taken = demo.output.rfind("\x1b[?1049h");
    const std::size_t back = demo.output.find("\x1b[?1049l");
    ASSERT_NE(taken, std::string::npos);
    EXPECT_GT(back, taken);
    EXPECT_NE(demo.output.find("\x1b[?25h", taken), std::string::npos);
    EXPECT_EQ(demo.output.find('\x1b', back + 8), std::string::npos) << "what stays on the screen is plain";
}

TEST(Program, RestoresTheTerminalWhenInterrupted) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        Program demo("exec " + kKinesta + "demo");
        ASSERT_TRUE(demo.waitFor("●"));
        demo.signal(number);
        const int status = demo.wait();
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number) << number;
        EXPECT_GT(demo.output.find("\x1b[?1049l"), demo.output.find("\x1b[?1049h"));
        EXPECT_NE(demo.output.find("\x1b[?25h"), std::string::npos);
    }
    Program deaf("trap '' HUP; exec " + kKinesta + "demo");
    ASSERT_TRUE(deaf.waitFor("●"));
    deaf.signal(SIGHUP);
    deaf.output.clear();
    ASSERT_TRUE(deaf.waitFor("●"));
    deaf.signal(SIGTERM);
    EXPECT_EQ(WTERMSIG(deaf.wait()), SIGTERM);
}

TEST(Program, RestoresTheTerminalWhileStopped) {
    const TemporaryFolder settings;
    const std::string monitor = "XDG_CONFIG_HOME=" + settings.path().string() + " " + kKinesta + "monitor";
    for (const auto& [command, title] : {std::pair(kKinesta + "demo", "Two fingers tap"), {monitor, "Waiting for"}}) {
        Program shell("set -m; " + command + "; echo stopped by $?; read; fg");
        ASSERT_TRUE(shell.waitFor(title));
        shell.type("\x1a");
        ASSERT_TRUE(shell.waitFor("stopped by " + std::to_string(128 + SIGTSTP)));
        const std::string before = std::exchange(shell.output, {});
        EXPECT_LT(before.find("\x1b[?25h"), before.find("stopped by"));
        EXPECT_LT(before.find("\x1b[?1049l"), before.find("stopped by"));
        shell.type("\n");
        ASSERT_TRUE(shell.waitFor("\x1b[?1049h\x1b[?25l"));
        ASSERT_TRUE(shell.waitFor(title));
        shell.type("\x03");
        shell.wait();
        EXPECT_NE(shell.output.find("\x1b[?1049l"), std::string::npos);
    }
}

TEST(Program, MonitorsAMultitouchLibrary) {
    const TemporaryFolder settings;
    const std::string environment = "KINESTA_TEST_TAP=1 XDG_CONFIG_HOME=" + settings.path().string() + " ";
    const std::string arguments = "monitor --multitouch-library multitouch_library.so";
    Program monitor("cd '" KINESTA_MULTITOUCH_LIBRARIES "' && " + environment + "exec " + kKinesta + arguments);
    EXPECT_TRUE(monitor.waitFor("2-finger single tap")) << monitor.output;
    EXPECT_NE(monitor.output.find("multitouch_library.so"), std::string::npos);
    EXPECT_NE(monitor.output.find("●"), std::string::npos) << "the fingers on the pad";
    monitor.type("\x03");
    EXPECT_EQ(monitor.wait(), 0);
    Program noPath(environment + "exec " + kKinesta + "monitor --multitouch-library ''");
    EXPECT_TRUE(noPath.waitFor("MultitouchSupport is unavailable")) << noPath.output;
    noPath.type("\x03");
    EXPECT_EQ(noPath.wait(), 0);
}

TEST(Program, ColoursOnlyOnTerminals) {
    for (const auto& [command, hasColours] : {std::pair(kKinesta + "gestures", true),
                                              {"NO_COLOR=1 " + kKinesta + "gestures", false},
                                              {kKinesta + "gestures | cat", false}}) {
        const std::string list = Program::outputOf(command);
        EXPECT_NE(list.find("tripleForceClick"), std::string::npos);
        EXPECT_EQ(list.find('\x1b') != std::string::npos, hasColours) << command;
    }
}

TEST(Program, WarnsOfTheRunningDesktopsGestures) {
    const TemporaryFolder folder;
    const std::string rules = folder.write(
        "rules.json",
        "[" + rule("0a", R"("name":"","fingerCount":3,"gesture":"edgeSlide")", R"("kind":"adjustVolume")") + "]");
    const std::string none = R"("warning":null)";
    for (const auto& [desktop, warning] : {std::pair("ubuntu:GNOME", std::string("GNOME 40")),
                                           {"KDE", "Plasma 6"},
                                           {"", none},
                                           {"XFCE", none},
                                           {"GNOMEsque", none}}) {
        const std::string report = Program::outputOf("XDG_CURRENT_DESKTOP=" + std::string(desktop) + " " + kKinesta +
                                                     "rules check --json " + rules);
        EXPECT_NE(report.find(warning), std::string::npos) << desktop << report;
    }
}

TEST(Program, EndsQuietlyOnAClosedPipe) {
    const std::string longSlide = R"((echo '{"kinesta":"recording","version":1}'
yes '{"t":1,"touches":[[1,0.1,0.2],[2,0.2,0.5]]}
{"t":1,"touches":[[1,0.1,0.8],[2,0.2,0.5]]}' | head -n 40000))";
    const std::string output =
        Program::outputOf(longSlide + " | " + kKinesta + "replay - --json | head -n 1; echo ended by ${PIPESTATUS[1]}");
    EXPECT_NE(output.find("edgeSlide"), std::string::npos);
    EXPECT_EQ(output.substr(output.find('\n') + 1), "ended by " + std::to_string(128 + SIGPIPE) + "\r\n");
}

}  // namespace
}  // namespace kinesta::testing
