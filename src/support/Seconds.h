#pragma once

namespace kinesta {

/// A span of time or a driver time stamp, in seconds.
using Seconds = double;

/// A point on the system's monotonic clock: seconds since boot, without the time spent asleep.
using Uptime = double;

}  // namespace kinesta
