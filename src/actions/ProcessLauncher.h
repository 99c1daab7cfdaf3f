#pragma once

#include <string>
#include <vector>

namespace kinesta {

/// The port that starts programs without blocking the main thread.
class ProcessLauncher {
  public:
    virtual ~ProcessLauncher() = default;

    /// Starts `executable` with `arguments` (without the program name) on another thread at user-initiated priority.
    /// Returns at once and ignores failures. The process inherits the environment, working directory and standard
    /// streams, is not waited for and has no time limit.
    virtual void launch(std::string executable, std::vector<std::string> arguments) = 0;
};

}  // namespace kinesta
