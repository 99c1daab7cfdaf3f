#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

#include "platform/posix/FileDescriptor.h"

namespace kinesta::testing {

/// How long a test waits for anything: much longer than it takes, even on a busy machine with sanitizers.
inline constexpr std::chrono::milliseconds kPatience{20000};

/// Waits until `descriptor` has something to read. Returns whether it has.
inline bool waitForInput(int descriptor, std::chrono::milliseconds patience = kPatience) {
    pollfd entry{descriptor, POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(patience.count())) > 0;
}

/// Waits until `condition` holds. Returns whether it does.
inline bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds patience = kPatience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        poll(nullptr, 0, 2);
    }
    return true;
}

/// Runs a shell command to its end. Returns whether it succeeded.
inline bool run(const std::string& command) { return std::system(command.c_str()) == 0; }

/// A program that a test runs. It ends when this object does, or with the test program if that dies.
class ChildProcess {
  public:
    /// Starts the program of a shell command.
    explicit ChildProcess(const std::string& command) {
        const std::string line = "exec " + command;
        std::array<int, 2> output{};
        EXPECT_EQ(pipe2(output.data(), O_CLOEXEC), 0);
        const pid_t parent = getpid();
        m_pid = fork();
        if (m_pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            dup2(output[1], STDOUT_FILENO);
            if (getppid() == parent)
                execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
            _exit(127);
        }
        close(output[1]);
        m_output = FileDescriptor(output[0]);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() {
        signal(SIGTERM);
        if (!waitForEnd(std::chrono::seconds(3)))
            end(SIGKILL);
    }

    pid_t pid() const { return m_pid; }

    /// The next line of its output without the line break; nothing at the end of the output or at the timeout.
    std::optional<std::string> readLine(std::chrono::milliseconds patience = kPatience) {
        for (;;) {
            if (const auto end = m_buffer.find('\n'); end != std::string::npos) {
                std::string line = m_buffer.substr(0, end);
                m_buffer.erase(0, end + 1);
                return line;
            }
            std::array<char, 4096> bytes{};
            const int output = m_output.number();
            const ssize_t count = waitForInput(output, patience) ? read(output, bytes.data(), bytes.size()) : 0;
            if (count <= 0)
                return std::nullopt;
            m_buffer.append(bytes.data(), static_cast<std::size_t>(count));
        }
    }

    /// Reads lines until one contains `text`.
    ::testing::AssertionResult says(const std::string& text, std::chrono::milliseconds patience = kPatience) {
        std::string said;
        while (const auto line = readLine(patience)) {
            if (line->find(text) != std::string::npos)
                return ::testing::AssertionSuccess();
            said += "\n" + *line;
        }
        return ::testing::AssertionFailure() << "did not say: " << text << "; but:" << said;
    }

    /// Whether it ended by itself within the time.
    bool waitForEnd(std::chrono::milliseconds patience = kPatience) {
        m_ended = m_ended || eventually([this] { return waitpid(m_pid, &m_status, WNOHANG) != 0; }, patience);
        return m_ended;
    }

    /// Sends it a signal, if it still runs.
    void signal(int number) const {
        if (!m_ended)
            kill(m_pid, number);
    }

    /// Ends it with a signal. Returns its exit status, or the signal that killed it.
    int end(int number) {
        signal(number);
        EXPECT_TRUE(waitForEnd());
        return WIFEXITED(m_status) ? WEXITSTATUS(m_status) : WTERMSIG(m_status);
    }

  private:
    pid_t m_pid = -1;
    FileDescriptor m_output;
    int m_status = 0;
    bool m_ended = false;
    std::string m_buffer;
};

}  // namespace kinesta::testing
