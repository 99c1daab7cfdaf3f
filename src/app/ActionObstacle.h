#pragma once

#include <optional>

#include "app/Desktop.h"
#include "rules/GestureAction.h"

namespace kinesta {

/// What keeps an action from working on this machine in any session: a key that cannot be posted, an application that
/// is missing or cannot be started, a missing file or folder, an address that is neither http nor https. Reads the file
/// system and starts nothing.
std::optional<Obstacle> obstacleTo(const GestureAction& action, Desktop& desktop);

/// Whether an action is one of the window tiling commands.
bool isTiling(const GestureAction& action);

}  // namespace kinesta
