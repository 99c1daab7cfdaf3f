#pragma once

#include <string_view>

#include "input/SettingsKeys.h"
#include "support/Point.h"

namespace kinesta {

/// Whether contacts that start in a corner of the pad count as palms, and how large a corner is.
struct CornerPalmRejectionSettings {
    static constexpr double defaultSensitivity = 0.5;
    static constexpr std::string_view enabledStorageKey = SettingsKeys::cornerPalmRejectionEnabled;
    static constexpr std::string_view sensitivityStorageKey = SettingsKeys::cornerPalmRejectionSensitivity;

    bool isEnabled = false;
    /// 0…1, for the smallest to the largest corners.
    double sensitivity = defaultSensitivity;

    /// `value` clamped to 0…1; the default for a value that is not finite.
    static double clampedSensitivity(double value);

    /// Side of the corner squares in normalized units, 0.03…0.18.
    double cornerInset() const;

    /// Whether `point` lies in one of the four corner squares, their inner edges included.
    bool contains(Point point) const;

    friend bool operator==(const CornerPalmRejectionSettings&, const CornerPalmRejectionSettings&) = default;
};

}  // namespace kinesta
