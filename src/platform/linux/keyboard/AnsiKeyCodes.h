#pragma once

#include <cstdint>
#include <optional>

namespace kinesta {

/// The kernel's code (KEY_…) of the key that sits where the key with this ANSI virtual key code sits; nothing for a
/// code without a key on keyboards here, such as 63, the fn key.
std::optional<std::uint16_t> evdevKeyCode(std::uint16_t ansiKeyCode);

}  // namespace kinesta
