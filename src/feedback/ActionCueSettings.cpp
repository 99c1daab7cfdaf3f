#include "feedback/ActionCueSettings.h"

#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

double numberInRange(std::optional<double> stored, double ifUnusable, double minimum, double maximum) {
    return stored && std::isfinite(*stored) ? std::clamp(*stored, minimum, maximum) : ifUnusable;
}

}  // namespace

ActionCuePosition ActionCueSettings::position(const UserDefaults& defaults) {
    const auto stored = defaults.string(positionKey);
    return (stored ? fromRawValue<ActionCuePosition>(*stored) : std::nullopt).value_or(defaultPosition);
}

Seconds ActionCueSettings::duration(const UserDefaults& defaults) {
    return numberInRange(defaults.real(durationKey), defaultDuration, minimumDuration, maximumDuration);
}

double ActionCueSettings::backgroundOpacity(const UserDefaults& defaults) {
    return numberInRange(defaults.real(opacityKey), defaultOpacity, minimumOpacity, maximumOpacity);
}

}  // namespace kinesta
