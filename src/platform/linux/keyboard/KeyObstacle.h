#pragma once

#include <cstdint>
#include <optional>

#include "app/DesktopFindings.h"

namespace kinesta {

/// Why the key with this virtual key code and these event flags cannot be posted here on any keyboard; nothing if it
/// can. Either no keyboard has the key, or fn has no meaning with it, or it is the shortcut of a tiling command. A
/// tiling shortcut is posted only after tiling failed, and its keys would do something else here, such as Ctrl+Home.
std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags);

}  // namespace kinesta
