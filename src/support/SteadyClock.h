#pragma once

#include <chrono>

#include "support/Clock.h"

namespace kinesta {

/// The standard library's clocks.
class SteadyClock final : public Clock {
  public:
    Uptime uptime() const override { return seconds(std::chrono::steady_clock::now()); }
    Seconds wallClock() const override { return seconds(std::chrono::system_clock::now()); }

  private:
    template <typename TimePoint>
    static Seconds seconds(TimePoint time) {
        return std::chrono::duration<Seconds>(time.time_since_epoch()).count();
    }
};

}  // namespace kinesta
