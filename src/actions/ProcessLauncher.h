#pragma once

#include <string>
#include <vector>

namespace kinesta {

/// The port that starts programs without holding up the main thread.
class ProcessLauncher {
  public:
    virtual ~ProcessLauncher() = default;

    /// Starts `executable` with `arguments` (the program's own name not among them) from another thread, at the
    /// priority of work that the person waits for. Returns at once; a failure to start is dropped. The process keeps
    /// our environment, working directory and standard streams, is not waited for and has no time limit.
    virtual void launch(std::string executable, std::vector<std::string> arguments) = 0;
};

}  // namespace kinesta
