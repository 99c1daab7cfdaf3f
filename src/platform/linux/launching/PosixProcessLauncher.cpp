#include "platform/linux/launching/PosixProcessLauncher.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "platform/linux/process/UserDatabase.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr const char* kZsh = "/bin/zsh";
constexpr const char* kNowhere = "/dev/null";

bool isPipe(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) != 0 || S_ISFIFO(status.st_mode);
}

class SpawnAttributes {
  public:
    SpawnAttributes() {
        posix_spawnattr_init(&m_attributes);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setsigdefault(&m_attributes, &all);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { posix_spawnattr_destroy(&m_attributes); }

    const posix_spawnattr_t* pointer() const { return &m_attributes; }

  private:
    posix_spawnattr_t m_attributes{};
};

class SpawnFileActions {
  public:
    SpawnFileActions(const std::string& workingDirectory, PosixProcessLauncher::Output output) {
        posix_spawn_file_actions_init(&m_actions);
        if (!workingDirectory.empty())
            posix_spawn_file_actions_addchdir_np(&m_actions, workingDirectory.c_str());
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, kNowhere, O_RDONLY, 0);
        if (output == PosixProcessLauncher::Output::nowhere || isPipe(STDOUT_FILENO))
            posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, kNowhere, O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&m_actions, STDOUT_FILENO, STDERR_FILENO);
        // Not every library opens its files with O_CLOEXEC.
        posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);
    }
    SpawnFileActions(const SpawnFileActions&) = delete;
    SpawnFileActions& operator=(const SpawnFileActions&) = delete;
    ~SpawnFileActions() { posix_spawn_file_actions_destroy(&m_actions); }

    const posix_spawn_file_actions_t* pointer() const { return &m_actions; }

  private:
    posix_spawn_file_actions_t m_actions{};
};

}  // namespace

PosixProcessLauncher::PosixProcessLauncher() : PosixProcessLauncher(Options{}) {}

PosixProcessLauncher::PosixProcessLauncher(Options options) : m_options(std::move(options)) {
    if (!m_options.loginShell)
        m_options.loginShell = loginShell;
}

PosixProcessLauncher::~PosixProcessLauncher() {
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    eventfd_write(m_wake.number(), 1);
    m_thread.join();
}

void PosixProcessLauncher::launch(std::string executable, std::vector<std::string> arguments) {
    launch(ProcessDescription{std::move(executable), std::move(arguments), {}});
}

void PosixProcessLauncher::launch(ProcessDescription process) {
    const std::lock_guard lock(m_mutex);
    m_waiting.push_back(std::move(process));
    if (!m_thread.joinable()) {
        m_wake = FileDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
        // Other threads handle signals, so this one blocks them all.
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        m_thread = std::thread([this] { run(); });
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    eventfd_write(m_wake.number(), 1);
}

void PosixProcessLauncher::run() {
    std::vector<pollfd> watched;
    for (;;) {
        const bool isEnding = startWaiting();
        reap();
        if (isEnding)
            return;
        watched.assign(1, {m_wake.number(), POLLIN, 0});
        for (const Child& child : m_children)
            watched.push_back({child.end.number(), POLLIN, 0});  // poll ignores a negative one
        poll(watched.data(), watched.size(), -1);
        eventfd_t ignored = 0;
        eventfd_read(m_wake.number(), &ignored);
    }
}

bool PosixProcessLauncher::startWaiting() {
    std::vector<ProcessDescription> waiting;
    bool isEnding = false;
    {
        const std::lock_guard lock(m_mutex);
        waiting.swap(m_waiting);
        isEnding = m_isEnding;
    }
    for (const ProcessDescription& process : waiting)
        start(process);
    return isEnding;
}

void PosixProcessLauncher::start(const ProcessDescription& process) {
    std::string executable = process.executable;
    if (executable == kZsh)
        executable = access(m_options.zsh.c_str(), X_OK) == 0 ? m_options.zsh : m_options.loginShell();
    std::vector<std::string> words{executable};
    words.insert(words.end(), process.arguments.begin(), process.arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const SpawnAttributes attributes;
    const SpawnFileActions actions(process.workingDirectory, m_options.output);
    pid_t child = -1;
    const int error =
        posix_spawnp(&child, executable.c_str(), actions.pointer(), attributes.pointer(), pointers.data(), environ);
    if (error != 0) {
        if (m_options.log)
            m_options.log(translated("%1 could not be started: %2.", {executable, std::strerror(error)}));
        return;
    }
    m_children.push_back({child, FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, child, 0)))});
}

void PosixProcessLauncher::reap() {
    std::erase_if(m_children, [](const Child& child) {
        const pid_t ended = waitpid(child.process, nullptr, WNOHANG);
        return ended == child.process || (ended < 0 && errno == ECHILD);
    });
}

}  // namespace kinesta
