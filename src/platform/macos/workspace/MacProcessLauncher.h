#pragma once

#include <functional>

#include "actions/ProcessLauncher.h"
#include "platform/macos/workspace/HandOvers.h"

namespace kinesta {

/// Starts programs from the global queue. They have the streams, folder and environment of this process and outlive it;
/// the system takes care of those that have ended. Main thread only.
class MacProcessLauncher final : public ProcessLauncher {
  public:
    /// `tell` receives one sentence, on another thread and perhaps after this has gone, when a program cannot be
    /// started. Starts are under way in `handOvers`, which must outlive this.
    MacProcessLauncher(std::function<void(const std::string&)> tell, HandOvers& handOvers);

    void launch(std::string executable, std::vector<std::string> arguments) override;

  private:
    std::function<void(const std::string&)> m_tell;
    HandOvers& m_handOvers;
};

}  // namespace kinesta
