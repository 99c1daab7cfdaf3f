#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kinesta {

/// What keeps something from working on this machine, and what to do about it: one sentence each.
struct Obstacle {
    std::string why;
    std::string remedy;
};

/// Why the key with this virtual key code under these event flags cannot be posted here, whatever the keyboard: no
/// keyboard has it, fn makes nothing of it, or it is the shortcut of a tiling command. That is posted only once windows
/// could not be tiled, and what is left of it would do something else: Ctrl with Home, say.
std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags);

}  // namespace kinesta
