#pragma once

#include <cstdint>
#include <optional>

#include "app/DesktopFindings.h"

namespace kinesta {

/// Why the key with this virtual key code under these event flags cannot be posted here, whatever the keyboard: no
/// keyboard has it, fn makes nothing of it, or it is the shortcut of a tiling command. That is posted only once windows
/// could not be tiled, and what is left of it would do something else: Ctrl with Home, say.
std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags);

}  // namespace kinesta
