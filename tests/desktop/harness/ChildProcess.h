#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kinesta::testing {

/// A program that a test runs. It ends when this object does, or with the test program if that dies.
class ChildProcess {
  public:
    /// How long a test waits for anything on the desktop: much longer than it takes, even on a busy machine with
    /// sanitizers.
    static constexpr std::chrono::milliseconds kPatience{20000};

    /// Runs `command`, its program searched in PATH. Its output is read through readLine().
    explicit ChildProcess(std::vector<std::string> command);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    pid_t pid() const { return m_pid; }

    /// The next line of its output without the line break; nothing at the end of the output or at the timeout.
    std::optional<std::string> readLine(std::chrono::milliseconds patience = kPatience);

    /// Whether it ended by itself within the time.
    bool waitForEnd(std::chrono::milliseconds patience = kPatience);

    /// Sends it a signal, if it still runs.
    void signal(int number);

  private:
    pid_t m_pid = -1;
    int m_output = -1;
    bool m_ended = false;
    std::string m_buffer;
};

/// Waits until `descriptor` has something to read. Returns whether it has.
bool waitForInput(int descriptor, std::chrono::milliseconds patience = ChildProcess::kPatience);

/// Waits until `condition` holds. Returns whether it does.
bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds patience = ChildProcess::kPatience);

}  // namespace kinesta::testing
