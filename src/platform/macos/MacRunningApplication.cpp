#include "platform/macos/MacRunningApplication.h"

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include "platform/posix/SingleInstance.h"
#include "support/SystemError.h"

extern char** environ;

namespace kinesta {

bool endProcess(pid_t process, int signal, std::chrono::milliseconds patience) {
    constexpr int kPause = 5;  // milliseconds
    using Clock = std::chrono::steady_clock;
    if (process <= 0)
        return false;  // would be a group of processes, or all
    if (::kill(process, signal) != 0)
        return errno == ESRCH;
    // Only a parent learns from the system when a process ends.
    for (const auto deadline = Clock::now() + patience; Clock::now() < deadline;) {
        ::poll(nullptr, 0, kPause);
        if (::kill(process, 0) != 0)
            return true;
    }
    return false;
}

std::vector<std::string> MacRunningApplication::opening(const std::filesystem::path& bundle) {
    // Not the program itself: it would have the permissions of the terminal, not its own.
    return {"/usr/bin/open", bundle.string()};
}

Result<pid_t> MacRunningApplication::process() const {
    const auto holder = SingleInstance::holder(m_settings);
    if (!holder || holder->role != SingleInstance::Role::application)
        return Error{"Kinesta does not run."};
    if (holder->process <= 0)
        return holder->error();
    return holder->process;
}

bool MacRunningApplication::isRunning() { return static_cast<bool>(process()); }

Outcome MacRunningApplication::show() const {
    if (m_bundle.empty())
        return Error{"This program is no part of Kinesta.app, so it cannot find the application."};
    std::vector<std::string> words = opening(m_bundle);
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t child = 0;
    int status = 0;
    if (const int error = ::posix_spawn(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ);
        error != 0)
        return Error{words.front() + " cannot be started: " + systemErrorText(error)};
    if (::waitpid(child, &status, 0) != child || status != 0)
        return Error{m_bundle.string() + " cannot be opened."};
    return success();
}

Outcome MacRunningApplication::ask(ApplicationRequest request) {
    const auto running = process();
    if (!running)
        return running.error();
    switch (request) {
        case ApplicationRequest::show:
            return show();
        case ApplicationRequest::reload:
            if (::kill(*running, SIGHUP) != 0)
                return Error{"Kinesta cannot be asked: " + systemErrorText(errno)};
            return success();
        case ApplicationRequest::quit:
            if (!endProcess(*running, SIGTERM, kPatience))
                return Error{"Kinesta was asked to quit but does not; to end it: kill -9 " + std::to_string(*running)};
            return success();
        case ApplicationRequest::hide:
        case ApplicationRequest::toggle:
        case ApplicationRequest::enable:
        case ApplicationRequest::disable:
            break;
    }
    return Error{"On macOS the application cannot be asked for this from a terminal. Use its icon in the menu bar."};
}

Result<RunningApplication::Report> MacRunningApplication::report() {
    const auto running = process();
    if (!running)
        return running.error();
    return Error{"Kinesta runs, as process " + std::to_string(*running) +
                 ". On macOS it does not tell a terminal more. Look at its icon in the menu bar."};
}

}  // namespace kinesta
