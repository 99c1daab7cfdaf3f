#pragma once

#include <chrono>

#include "support/Clock.h"
#include "support/VirtualMainThread.h"

namespace kinesta {

/// The time of a VirtualMainThread, which must outlive it, in seconds.
class VirtualClock final : public Clock {
  public:
    explicit VirtualClock(const VirtualMainThread& thread) : m_thread(thread) {}

    Uptime uptime() const override { return wallClock(); }
    Seconds wallClock() const override { return std::chrono::duration<Seconds>(m_thread.now()).count(); }

  private:
    const VirtualMainThread& m_thread;
};

}  // namespace kinesta
