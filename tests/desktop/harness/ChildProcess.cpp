#include "desktop/harness/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace kinesta::testing {

ChildProcess::ChildProcess(std::vector<std::string> command) {
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
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    close(output[1]);
    m_output = output[0];
    if (m_pid < 0)
        throw std::runtime_error("cannot run " + command.front());
}

ChildProcess::~ChildProcess() {
    signal(SIGTERM);
    if (!waitForEnd(std::chrono::seconds(3))) {
        signal(SIGKILL);
        waitForEnd();
    }
    close(m_output);
}

std::optional<std::string> ChildProcess::readLine(std::chrono::milliseconds patience) {
    for (;;) {
        if (const auto end = m_buffer.find('\n'); end != std::string::npos) {
            std::string line = m_buffer.substr(0, end);
            m_buffer.erase(0, end + 1);
            return line;
        }
        std::array<char, 4096> bytes{};
        const ssize_t count = waitForInput(m_output, patience) ? read(m_output, bytes.data(), bytes.size()) : 0;
        if (count <= 0)
            return std::nullopt;
        m_buffer.append(bytes.data(), static_cast<std::size_t>(count));
    }
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds patience) {
    m_ended = m_ended || eventually([this] { return waitpid(m_pid, nullptr, WNOHANG) != 0; }, patience);
    return m_ended;
}

void ChildProcess::signal(int number) {
    if (!m_ended)
        kill(m_pid, number);
}

bool waitForInput(int descriptor, std::chrono::milliseconds patience) {
    pollfd entry{descriptor, POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(patience.count())) > 0;
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
