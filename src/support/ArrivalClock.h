#pragma once

#include <atomic>
#include <cmath>
#include <limits>

#include "support/Clock.h"

namespace kinesta {

/// Another clock, which must outlive this one. The uptime can be set while an event is delivered that has its own exact
/// arrival time.
class ArrivalClock final : public Clock {
  public:
    explicit ArrivalClock(const Clock& clock) : m_clock(clock) {}

    /// Makes uptime() return `uptime` (finite) until clearUptime().
    void setUptime(Uptime uptime) { m_uptime = uptime; }
    void clearUptime() { m_uptime = kNone; }

    Uptime uptime() const override {
        const Uptime uptime = m_uptime;
        return std::isnan(uptime) ? m_clock.uptime() : uptime;
    }
    Seconds wallClock() const override { return m_clock.wallClock(); }

  private:
    static constexpr Uptime kNone = std::numeric_limits<Uptime>::quiet_NaN();

    const Clock& m_clock;
    std::atomic<Uptime> m_uptime = kNone;
};

}  // namespace kinesta
