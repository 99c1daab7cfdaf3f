#pragma once

#include <optional>

#include "actions/HomeFolders.h"
#include "platform/linux/keyboard/KeyObstacle.h"
#include "rules/GestureAction.h"

namespace kinesta {

/// What keeps an action from working on this machine, whatever the session: a key that cannot be posted, an application
/// that is missing or cannot be started, a file or folder that is missing, an address that is none of the web. Looks at
/// the file system; nothing is started.
std::optional<Obstacle> obstacleTo(const GestureAction& action, const HomeFolders& homes);

}  // namespace kinesta
