#pragma once

#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>

#include "support/Clock.h"
#include "support/VirtualMainThread.h"

namespace kinesta {

/// Tells the time of a VirtualMainThread in seconds, which must outlive it. While an event is delivered that knows
/// the exact uptime of its own arrival, that one can be told instead.
class VirtualClock final : public Clock {
  public:
    explicit VirtualClock(const VirtualMainThread& thread) : m_thread(thread) {}

    /// Makes uptime() tell `uptime` (finite) until clearUptime(), whatever the thread's time.
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
