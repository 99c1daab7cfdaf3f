#pragma once

#include "support/SteadyClock.h"

namespace kinesta {

/// The time that the system's events and the trackpad's frames bear: it stands still while the machine sleeps. The
/// standard library's steady clock does not (from memory).
class MacClock final : public Clock {
  public:
    Uptime uptime() const override;
    Seconds wallClock() const override { return SteadyClock().wallClock(); }
};

}  // namespace kinesta
