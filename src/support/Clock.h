#pragma once

#include "support/Seconds.h"

namespace kinesta {

/// The port through which the core learns the time. May be asked from any thread.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The system's uptime now.
    virtual Uptime uptime() const = 0;

    /// Wall-clock time now, in seconds since an epoch of the implementation's choosing.
    virtual Seconds wallClock() const = 0;
};

}  // namespace kinesta
