#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kinesta::testing {

/// A program that a test runs beside itself. It ends when this object does, or with the test program if that dies.
class ChildProcess {
  public:
    /// How long anything on the desktop may take before a test gives up: far beyond what it takes, also when the
    /// machine is busy and sanitizers slow it down.
    static constexpr std::chrono::milliseconds kPatience{20000};

    /// Runs `command` (its program searched in PATH) with `environment` ("NAME=value") added to ours. Its output is
    /// read through readLine(). `inheritedDescriptor`, if any, is the one it finds under the same number.
    explicit ChildProcess(std::vector<std::string> command, const std::vector<std::string>& environment = {},
                          int inheritedDescriptor = -1);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    pid_t pid() const { return m_pid; }

    /// The next line of its output without the line break; nothing at its end or when patience runs out.
    std::optional<std::string> readLine(std::chrono::milliseconds patience = kPatience);

    /// Whether it ended by itself within the time.
    bool waitForEnd(std::chrono::milliseconds patience = kPatience);

    /// Sends a signal to it, if it still runs.
    void signal(int number);

  private:
    pid_t m_pid = -1;
    int m_pidDescriptor = -1;
    int m_output = -1;
    bool m_ended = false;
    std::string m_buffer;
};

/// Waits until `descriptor` has something to read; whether it has.
bool waitForInput(int descriptor, std::chrono::milliseconds patience);

/// Waits until `condition` holds for something that tells nobody when it changes, such as a file that appears.
bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds patience = ChildProcess::kPatience);

}  // namespace kinesta::testing
