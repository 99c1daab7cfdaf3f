#pragma once

#include "support/Clock.h"

namespace kinesta::testing {

/// A clock that moves only by advance().
class ManualClock final : public Clock {
  public:
    Uptime uptime() const override { return m_now; }
    Seconds wallClock() const override { return m_now; }
    void advance(Seconds time) { m_now += time; }

  private:
    Uptime m_now = 1024;  // multiples of 1/16 s stay exact from here
};

}  // namespace kinesta::testing
