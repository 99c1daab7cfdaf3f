#pragma once

#include "input/TouchSample.h"
#include "support/Seconds.h"

namespace kinesta {

/// The fingers that touch the pad at one moment, in the driver's order. Without samples: no finger is on the pad.
struct TrackpadContactFrame {
    TouchSamples samples;
    /// The driver's own time stamp, growing from frame to frame: the time base of all recognizer timing.
    Seconds timestamp = 0;

    friend bool operator==(const TrackpadContactFrame&, const TrackpadContactFrame&) = default;
};

}  // namespace kinesta
