#include "desktop/harness/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace kinesta::testing {

ChildProcess::ChildProcess(std::vector<std::string> command, const std::vector<std::string>& environment,
                           int inheritedDescriptor) {
    std::array<int, 2> output{};
    if (pipe2(output.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    std::vector<char*> arguments;
    for (std::string& word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t parent = getpid();
    m_pid = fork();
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)
            _exit(127);
        dup2(output[1], STDOUT_FILENO);
        for (const std::string& assignment : environment) {
            const auto equals = assignment.find('=');
            setenv(assignment.substr(0, equals).c_str(), assignment.c_str() + equals + 1, 1);
        }
        if (inheritedDescriptor >= 0)
            fcntl(inheritedDescriptor, F_SETFD, 0);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    close(output[1]);
    m_output = output[0];
    m_pidDescriptor = static_cast<int>(syscall(SYS_pidfd_open, m_pid, 0));
    if (m_pid < 0 || m_pidDescriptor < 0)
        throw std::runtime_error("cannot run " + command.front());
}

ChildProcess::~ChildProcess() {
    signal(SIGTERM);
    if (!waitForEnd(std::chrono::seconds(3))) {
        signal(SIGKILL);
        waitForEnd();
    }
    close(m_pidDescriptor);
    close(m_output);
}

std::optional<std::string> ChildProcess::readLine(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        if (const auto end = m_buffer.find('\n'); end != std::string::npos) {
            std::string line = m_buffer.substr(0, end);
            m_buffer.erase(0, end + 1);
            return line;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        std::array<char, 4096> bytes{};
        if (!waitForInput(m_output, left))
            return std::nullopt;
        const ssize_t count = read(m_output, bytes.data(), bytes.size());
        if (count <= 0)
            return std::nullopt;
        m_buffer.append(bytes.data(), static_cast<std::size_t>(count));
    }
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds patience) {
    if (!m_ended && waitForInput(m_pidDescriptor, patience)) {
        waitpid(m_pid, nullptr, 0);
        m_ended = true;
    }
    return m_ended;
}

void ChildProcess::signal(int number) {
    if (!m_ended)
        syscall(SYS_pidfd_send_signal, m_pidDescriptor, number, nullptr, 0);
}

bool waitForInput(int descriptor, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd entry{descriptor, POLLIN, 0};
        const int count = poll(&entry, 1, left.count() > 0 ? static_cast<int>(left.count()) : 0);
        if (count > 0)
            return true;
        if (count == 0)
            return false;
    }
}

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        poll(nullptr, 0, 2);
    }
    return true;
}

}  // namespace kinesta::testing
