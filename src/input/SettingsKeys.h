#pragma once

#include <string_view>

/// The keys of the settings that recognition depends on, in the stored settings and in recordings.
namespace kinesta::SettingsKeys {

inline constexpr std::string_view gesturesEnabled = "gesturesEnabled";
inline constexpr std::string_view tapWaitingInterval = "tapWaitingInterval.v1";
inline constexpr std::string_view cornerPalmRejectionEnabled = "cornerPalmRejectionEnabled.v1";
inline constexpr std::string_view cornerPalmRejectionSensitivity = "cornerPalmRejectionSensitivity.v1";

}  // namespace kinesta::SettingsKeys
