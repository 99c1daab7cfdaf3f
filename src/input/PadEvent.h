#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "input/TouchSample.h"
#include "support/Seconds.h"

namespace kinesta {

/// The fingers on the pad. Without samples: no finger is on it.
struct PadFrame {
    TouchSamples samples;
    /// Uptime of the frame's arrival, where it is not the frame's own time.
    std::optional<Uptime> received;

    friend bool operator==(const PadFrame&, const PadFrame&) = default;
};

/// A press or release of the pad. Recognition treats the left and the right button alike.
enum class PadButton { down, up };

/// The pressure of a click has reached another stage: 1 soft, 2 forced.
struct PadPressure {
    std::int64_t stage = 0;

    friend bool operator==(const PadPressure&, const PadPressure&) = default;
};

/// One event of a pad, from a driver or a recording.
struct PadEvent {
    Seconds time = 0;
    std::variant<PadFrame, PadButton, PadPressure> content;

    friend bool operator==(const PadEvent&, const PadEvent&) = default;
};

}  // namespace kinesta
