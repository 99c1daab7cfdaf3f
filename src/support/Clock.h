#pragma once

#include "support/Seconds.h"

namespace kinesta {

/// The port to the time. Any thread.
class Clock {
  public:
    virtual ~Clock() = default;

    /// Time since the system started.
    virtual Uptime uptime() const = 0;

    /// Wall-clock time. The epoch is up to the implementation.
    virtual Seconds wallClock() const = 0;
};

}  // namespace kinesta
