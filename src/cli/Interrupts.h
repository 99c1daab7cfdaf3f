#pragma once

#include <csignal>

#include "platform/linux/SignalListener.h"
#include "support/RunLoop.h"

namespace kinesta {

/// Ends a loop at Ctrl-C and at SIGTERM, so that what is open is closed in order. To be made before any thread.
class Interrupts {
  public:
    explicit Interrupts(RunLoop& loop) : m_listener(loop, {SIGINT, SIGTERM}, [&loop](int) { loop.quit(); }) {}

  private:
    SignalListener m_listener;
};

}  // namespace kinesta
