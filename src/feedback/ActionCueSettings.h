#pragma once

#include <string_view>

#include "feedback/ActionCuePosition.h"
#include "support/Seconds.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The person's wishes about the cue. Each reader returns a value in range, also for bad stored ones.
struct ActionCueSettings {
    static constexpr std::string_view enabledKey = "actionCueEnabled.v1";
    static constexpr std::string_view positionKey = "actionCuePosition.v1";
    static constexpr std::string_view durationKey = "actionCueDuration.v1";
    static constexpr std::string_view opacityKey = "actionCueOpacity.v1";

    static constexpr ActionCuePosition defaultPosition = ActionCuePosition::topRight;
    static constexpr Seconds defaultDuration = 1.5;
    static constexpr Seconds minimumDuration = 0.5;
    static constexpr Seconds maximumDuration = 5.0;
    static constexpr double defaultOpacity = 0.62;
    static constexpr double minimumOpacity = 0.25;
    static constexpr double maximumOpacity = 0.9;

    /// Whether actions show a cue at all: yes, unless switched off.
    static bool isEnabled(const UserDefaults& defaults) { return defaults.boolean(enabledKey).value_or(true); }
    static ActionCuePosition position(const UserDefaults& defaults);
    /// How long the cue stays up.
    static Seconds duration(const UserDefaults& defaults);
    /// 0…1, where 1 hides what is behind the cue.
    static double backgroundOpacity(const UserDefaults& defaults);
};

}  // namespace kinesta
