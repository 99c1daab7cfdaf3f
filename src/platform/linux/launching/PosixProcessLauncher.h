#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "actions/ProcessLauncher.h"
#include "platform/linux/process/FileDescriptor.h"

namespace kinesta {

/// A program to start.
struct ProcessDescription {
    /// A path, or a name that is searched in PATH if it has no "/".
    std::string executable;
    /// Without the program's own name.
    std::vector<std::string> arguments;
    /// Empty: ours.
    std::string workingDirectory;
};

/// Starts programs that live on their own: in a session of their own, so that they survive us and no terminal's signal
/// reaches them through us; with nothing to read, and no output of ours but the log; with the signals as programs
/// expect them. Any thread.
///
/// A thread, begun at the first launch, starts them and waits for their ends. It sleeps while nothing of that happens,
/// and is told by process descriptors: SIGCHLD belongs to whoever else wants it, and so do other children.
class PosixProcessLauncher final : public ProcessLauncher {
  public:
    /// Where the standard output and standard error of programs go.
    enum class Output {
        nowhere,
        /// To our standard output, which is the daemon's log. To nowhere if that is a pipe: whoever reads it would wait
        /// for the end of programs that outlive us.
        log
    };

    struct Options {
        /// The shell that shell commands ask for.
        std::string zsh = "/bin/zsh";
        /// What stands in where there is no zsh: a shell that takes the same arguments.
        std::function<std::string()> loginShell;
        /// Is told, on another thread and as one sentence, what could not be started and why.
        std::function<void(const std::string&)> log;
        Output output = Output::nowhere;
    };

    PosixProcessLauncher();
    explicit PosixProcessLauncher(Options options);
    PosixProcessLauncher(const PosixProcessLauncher&) = delete;
    PosixProcessLauncher& operator=(const PosixProcessLauncher&) = delete;
    /// Returns once all that was asked for has been started; what runs goes on.
    ~PosixProcessLauncher() override;

    void launch(std::string executable, std::vector<std::string> arguments) override;
    void launch(ProcessDescription process);

  private:
    struct Child {
        pid_t process;
        FileDescriptor end;  // readable once the process has ended; none on kernels before 5.3
    };

    void run();
    void start(const ProcessDescription& process);
    void reap();

    Options m_options;
    FileDescriptor m_wake;
    std::mutex m_mutex;  // guards the two below
    std::vector<ProcessDescription> m_waiting;
    bool m_isEnding = false;
    std::vector<Child> m_children;  // of the thread alone
    std::thread m_thread;
};

}  // namespace kinesta
