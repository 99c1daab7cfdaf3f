#pragma once

#include <cstdint>
#include <optional>

#include "app/DesktopFindings.h"

namespace kinesta {

/// The kernel's code (KEY_…) for the key in the position of this ANSI virtual key code; nothing for a code that
/// keyboards here have no key for, such as 63, the fn key.
std::optional<std::uint16_t> evdevKeyCode(std::uint16_t ansiKeyCode);

/// The virtual key code of the key with this kernel code; nothing if it has none.
std::optional<std::uint16_t> ansiKeyCode(std::uint16_t evdevKeyCode);

/// The key that a shortcut's virtual key code means here. With fn an arrow is Home, End, Page Up or Page Down, Delete
/// deletes forward and Return is the keypad's Enter. Nothing if no key here does that: fn has no meaning with letters,
/// and posting the bare letter would type into the person's text.
std::optional<std::uint16_t> keyForShortcut(std::uint16_t ansiKeyCode, std::uint64_t flags);

/// Why the key with this virtual key code and these event flags cannot be posted here on any keyboard; nothing if it
/// can. Either no keyboard has the key, or fn has no meaning with it, or it is the shortcut of a tiling command. A
/// tiling shortcut is posted only after tiling failed, and its keys would do something else here, such as Ctrl+Home.
std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags);

}  // namespace kinesta
