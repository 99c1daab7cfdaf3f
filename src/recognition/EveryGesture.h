#pragma once

#include <functional>

#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// Lets `handler` hear of every finished gesture of any kind. Takes over the service's three callbacks; main thread.
void onEveryGesture(MultitouchService& service, const std::function<void(const DetectedGesture&)>& handler);

}  // namespace kinesta
