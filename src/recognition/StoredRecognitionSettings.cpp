#include "recognition/StoredRecognitionSettings.h"

#include "recognition/MultitouchService.h"

namespace kinesta {

bool storedGestureEnabled(const UserDefaults& defaults) {
    constexpr std::string_view key = MultitouchService::enabledStorageKey;
    return !defaults.contains(key) || defaults.boolean(key).value_or(false);
}

TapWaitingInterval storedTapWaitingInterval(const UserDefaults& defaults) {
    return TapWaitingInterval::fromRawValue(defaults.integer(TapWaitingInterval::storageKey).value_or(0))
        .value_or(TapWaitingInterval::defaultValue);
}

CornerPalmRejectionSettings storedCornerPalmRejection(const UserDefaults& defaults) {
    using Settings = CornerPalmRejectionSettings;
    return {defaults.boolean(Settings::enabledStorageKey).value_or(false),
            Settings::clampedSensitivity(
                defaults.real(Settings::sensitivityStorageKey).value_or(Settings::defaultSensitivity))};
}

}  // namespace kinesta
