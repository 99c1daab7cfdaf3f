#include <fcntl.h>
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

/// The real program as a child, on a terminal or on pipes, ended if the test ends first.
class Program {
  public:
    enum class On { terminal, pipe };

    Program(On on, const std::vector<std::string>& arguments, const std::vector<std::string>& environment = {}) {
        std::vector<std::string> words{KINESTA_PROGRAM};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        const winsize size{.ws_row = 40, .ws_col = 100, .ws_xpixel = 0, .ws_ypixel = 0};
        int ends[2] = {-1, -1};
        if (on == On::terminal) {
            m_child = ::forkpty(&m_output, nullptr, nullptr, &size);
        } else {
            EXPECT_EQ(::pipe(ends), 0);
            m_child = ::fork();
        }
        if (m_child == 0) {
            if (on == On::pipe) {
                ::dup2(ends[1], STDOUT_FILENO);
                ::close(ends[0]);
                ::close(ends[1]);
            }
            for (const std::string& variable : environment)
                ::putenv(::strdup(variable.c_str()));
            ::execv(KINESTA_PROGRAM, pointers.data());
            ::_exit(127);
        }
        if (on == On::pipe) {
            ::close(ends[1]);
            m_output = ends[0];
        }
    }
    ~Program() {
        if (m_child > 0) {
            ::kill(m_child, SIGKILL);
            ::waitpid(m_child, nullptr, 0);
        }
        closeOutput();
    }

    /// Reads until `text` appears, the output ends, or the time is up; whether it appeared.
    bool waitFor(const std::string& text, std::chrono::seconds patience = std::chrono::seconds(20)) {
        const auto end = Clock::now() + patience;
        while (output.find(text) == std::string::npos) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
            pollfd readable{m_output, POLLIN, 0};
            char block[4096];
            if (left <= 0 || ::poll(&readable, 1, static_cast<int>(left)) <= 0)
                return false;
            const ssize_t count = ::read(m_output, block, sizeof block);
            if (count <= 0)  // a terminal whose program has ended answers EIO
                return false;
            output.append(block, static_cast<std::size_t>(count));
        }
        return true;
    }

    void signal(int number) const { ::kill(m_child, number); }

    void closeOutput() {
        if (m_output >= 0)
            ::close(std::exchange(m_output, -1));
    }

    /// Waits for the end, reading what is still said, and returns what waitpid() tells.
    int wait() {
        if (m_output >= 0)
            waitFor("text that no program says");
        int status = -1;
        ::waitpid(std::exchange(m_child, -1), &status, 0);
        return status;
    }

    std::string output;

  private:
    pid_t m_child = -1;
    int m_output = -1;
};

TEST(ProgramTest, demoShowsEveryGestureInTimeAndLeavesTheTerminalAsItWas) {
    const auto began = Clock::now();
    Program demo(Program::On::terminal, {"demo"});
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

TEST(ProgramTest, anInterruptedDemoGivesTheTerminalBackAndEndsAsInterrupted) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        Program demo(Program::On::terminal, {"demo"});
        ASSERT_TRUE(demo.waitFor("●"));
        demo.signal(number);
        const int status = demo.wait();
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number) << number;
        EXPECT_GT(demo.output.find("\x1b[?1049l"), demo.output.find("\x1b[?1049h"));
        EXPECT_NE(demo.output.find("\x1b[?25h"), std::string::npos);
    }
}

TEST(ProgramTest, coloursOnlyOnATerminalThatWantsThem) {
    const auto escapes = [](Program::On on, const std::vector<std::string>& environment) {
        Program list(on, {"gestures"}, environment);
        list.wait();
        EXPECT_NE(list.output.find("tripleForceClick"), std::string::npos);
        return list.output.find('\x1b') != std::string::npos;
    };
    EXPECT_TRUE(escapes(Program::On::terminal, {}));
    EXPECT_FALSE(escapes(Program::On::terminal, {"NO_COLOR=1"}));
    EXPECT_FALSE(escapes(Program::On::pipe, {}));
}

TEST(ProgramTest, endsQuietlyWhenNobodyReads) {
    TemporaryFolder folder;
    std::string slide = "{\"kinesta\":\"recording\",\"version\":1}\n";
    for (int i = 0; i < 20000; ++i)
        slide +=
            "{\"t\":" + std::to_string(i) + ",\"touches\":[[1,0.1," + (i % 2 ? "0.2" : "0.8") + "],[2,0.2,0.5]]}\n";
    const std::string file = folder.write("slide.jsonl", slide);
    Program replay(Program::On::pipe, {"replay", file, "--json"});
    ASSERT_TRUE(replay.waitFor("edgeSlide"));
    replay.closeOutput();
    const int status = replay.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGPIPE) << status;
}

}  // namespace
}  // namespace kinesta::testing
