#pragma once

#include "input/CornerPalmRejectionSettings.h"
#include "recognition/TapWaitingInterval.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// What the stored settings say about recognition; where they say nothing, or nothing that exists, the default.

/// On, unless stored otherwise; a stored value that is no Boolean is off.
bool storedGestureEnabled(const UserDefaults& defaults);

TapWaitingInterval storedTapWaitingInterval(const UserDefaults& defaults);

CornerPalmRejectionSettings storedCornerPalmRejection(const UserDefaults& defaults);

}  // namespace kinesta
