#pragma once

#include "input/CornerPalmRejectionSettings.h"
#include "input/TapWaitingInterval.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The stored settings of recognition; the default for an absent or invalid one.

/// On, unless stored otherwise; a stored value that is no Boolean is off.
bool storedGestureEnabled(const UserDefaults& defaults);

TapWaitingInterval storedTapWaitingInterval(const UserDefaults& defaults);

CornerPalmRejectionSettings storedCornerPalmRejection(const UserDefaults& defaults);

}  // namespace kinesta
