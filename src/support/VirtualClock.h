#pragma once

#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>

#include "support/Clock.h"
#include "support/VirtualMainThread.h"

namespace kinesta {

/// The time of a VirtualMainThread, which must outlive it, in seconds. The uptime can be set while an event is
/// delivered that has its own exact arrival time.
class VirtualClock final : public Clock {
  public:
    explicit VirtualClock(const VirtualMainThread& thread) : m_thread(thread) {}

    /// Makes uptime() return `uptime` (finite) until clearUptime().
    void setUptime(Uptime uptime) { m_uptime = uptime; }
    void clearUptime() { m_uptime = kNone; }

    Uptime uptime() const override {
        const Uptime uptime = m_uptime;
        return std::isnan(uptime) ? wallClock() : uptime;
    }
    Seconds wallClock() const override { return std::chrono::duration<Seconds>(m_thread.now()).count(); }

  private:
    static constexpr Uptime kNone = std::numeric_limits<Uptime>::quiet_NaN();

    const VirtualMainThread& m_thread;
    std::atomic<Uptime> m_uptime = kNone;
};

}  // namespace kinesta
