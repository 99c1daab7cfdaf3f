#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "input/TrackpadContactFrame.h"

namespace kinesta {

/// The settings that a recording may change; what is absent stays as it is.
struct RecordedSettings {
    std::optional<bool> gesturesEnabled = std::nullopt;
    /// 150, 200, 250, 300 or 400.
    std::optional<int> tapWaitingMilliseconds = std::nullopt;
    std::optional<bool> cornerPalmRejectionEnabled = std::nullopt;
    std::optional<double> cornerPalmRejectionSensitivity = std::nullopt;

    friend bool operator==(const RecordedSettings&, const RecordedSettings&) = default;
};

struct RecordedFrame {
    TouchSamples samples;
    /// Uptime of the frame's arrival, where it is not the frame's own time.
    std::optional<Uptime> received;

    friend bool operator==(const RecordedFrame&, const RecordedFrame&) = default;
};

enum class RecordedPointer { down, up };

struct RecordedPressure {
    std::int64_t stage = 0;

    friend bool operator==(const RecordedPressure&, const RecordedPressure&) = default;
};

/// One line of a recording.
struct RecordingEvent {
    /// When it happened, in seconds; never less than the event before.
    Seconds time = 0;
    std::variant<RecordedFrame, RecordedPointer, RecordedPressure, RecordedSettings> content;

    friend bool operator==(const RecordingEvent&, const RecordingEvent&) = default;
};

}  // namespace kinesta
