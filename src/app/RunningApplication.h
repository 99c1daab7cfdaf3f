#pragma once

#include <cstdint>

#include "app/ApplicationState.h"
#include "support/Result.h"

namespace kinesta {

/// The port to the application that runs on this desktop, seen from another process. Each call waits for the answer,
/// at most some seconds; the error says that it does not run, or why it does not do what it is asked. Main thread only.
class RunningApplication {
  public:
    struct Report {
        std::int64_t process = 0;
        ApplicationState state;
    };

    virtual ~RunningApplication() = default;

    /// Returns when it has been done; `quit` when the process has ended.
    virtual Outcome ask(ApplicationRequest request) = 0;
    virtual Result<Report> report() = 0;
    virtual bool isRunning() { return static_cast<bool>(report()); }
};

}  // namespace kinesta
