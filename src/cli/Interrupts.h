#pragma once

#include <csignal>
#include <functional>
#include <utility>

#include "platform/linux/process/SignalListener.h"
#include "support/RunLoop.h"

namespace kinesta {

/// Ends a loop at Ctrl-C and at SIGTERM, so that what is open is closed in order. To be made before any thread.
class Interrupts {
  public:
    explicit Interrupts(RunLoop& loop) : m_listener(loop, {SIGINT, SIGTERM}, [&loop](int) { loop.quit(); }) {}

    /// Calls `onStop` at Ctrl-Z instead of being stopped.
    Interrupts(RunLoop& loop, std::function<void()> onStop)
        : m_listener(loop, {SIGINT, SIGTERM, SIGTSTP},
                     [&loop, onStop = std::move(onStop)](int signal) { signal == SIGTSTP ? onStop() : loop.quit(); }) {}

  private:
    SignalListener m_listener;
};

}  // namespace kinesta
