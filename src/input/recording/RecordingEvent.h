#pragma once

#include <optional>
#include <variant>

#include "input/PadEvent.h"

namespace kinesta {

/// The settings that a recording may change; an absent one stays as it is.
struct RecordedSettings {
    std::optional<bool> gesturesEnabled = std::nullopt;
    /// 150, 200, 250, 300 or 400.
    std::optional<int> tapWaitingMilliseconds = std::nullopt;
    std::optional<bool> cornerPalmRejectionEnabled = std::nullopt;
    std::optional<double> cornerPalmRejectionSensitivity = std::nullopt;

    friend bool operator==(const RecordedSettings&, const RecordedSettings&) = default;
};

struct SettingsChange {
    Seconds time = 0;
    RecordedSettings settings;

    friend bool operator==(const SettingsChange&, const SettingsChange&) = default;
};

/// One line of a recording. Times never decrease from line to line.
using RecordingEvent = std::variant<PadEvent, SettingsChange>;

inline Seconds eventTime(const RecordingEvent& event) {
    return std::visit([](const auto& e) { return e.time; }, event);
}

}  // namespace kinesta
