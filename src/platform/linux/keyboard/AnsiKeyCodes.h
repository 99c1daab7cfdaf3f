#pragma once

#include <cstdint>
#include <optional>

namespace kinesta {

/// The kernel's code (KEY_…) for the key in the position of this ANSI virtual key code; nothing for a code that
/// keyboards here have no key for, such as 63, the fn key.
std::optional<std::uint16_t> evdevKeyCode(std::uint16_t ansiKeyCode);

}  // namespace kinesta
