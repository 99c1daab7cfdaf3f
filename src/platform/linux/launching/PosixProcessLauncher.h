#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "actions/ProcessLauncher.h"
#include "platform/posix/FileDescriptor.h"

namespace kinesta {

/// A program to start.
struct ProcessDescription {
    /// A path, or a name that is searched in PATH if it has no "/".
    std::string executable;
    /// Without the program's own name.
    std::vector<std::string> arguments;
    /// Empty for Kinesta's own.
    std::string workingDirectory;
};

/// Starts programs in sessions of their own: they outlive Kinesta, and the signals of its terminal do not reach them.
/// They get an empty input, the log or nothing as output, and default signal handling. Any thread.
///
/// A thread, created at the first launch, starts the programs and waits for them to end. It uses process descriptors
/// instead of SIGCHLD, which stays free for other code, and does not wait for other children.
class PosixProcessLauncher final : public ProcessLauncher {
  public:
    /// Where the standard output and standard error of programs go.
    enum class Output {
        nowhere,
        /// To standard output, which is the daemon's log. To nowhere if that is a pipe: its reader would wait until all
        /// these programs have ended.
        log
    };

    struct Options {
        /// The shell that shell commands ask for.
        std::string zsh = "/bin/zsh";
        /// The shell to use where there is no zsh. It must take the same arguments.
        std::function<std::string()> loginShell;
        /// Gets one sentence, on another thread, when a program cannot be started.
        std::function<void(const std::string&)> log;
        Output output = Output::nowhere;
    };

    PosixProcessLauncher();
    explicit PosixProcessLauncher(Options options);
    PosixProcessLauncher(const PosixProcessLauncher&) = delete;
    PosixProcessLauncher& operator=(const PosixProcessLauncher&) = delete;
    /// Returns when every launched program has been started. Running programs go on.
    ~PosixProcessLauncher() override;

    void launch(std::string executable, std::vector<std::string> arguments) override;
    void launch(ProcessDescription process);

  private:
    struct Child {
        pid_t process;
        FileDescriptor end;  // readable once the process has ended; none on kernels before 5.3
    };

    void run();
    /// True once no more will come.
    bool startWaiting();
    void start(const ProcessDescription& process);
    void reap();

    Options m_options;
    FileDescriptor m_wake;
    std::mutex m_mutex;  // guards the two below
    std::vector<ProcessDescription> m_waiting;
    bool m_isEnding = false;
    std::vector<Child> m_children;  // used by the thread only
    std::thread m_thread;
};

}  // namespace kinesta
