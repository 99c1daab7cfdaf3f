#include "platform/linux/keyboard/KeyObstacle.h"

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/keyboard/KeyStroke.h"

namespace kinesta {
namespace {

/// Arrows with ⌃fn, ⌃⇧fn or ⌃⌥⇧fn. Tiling commands on letters need no check, because letters have no meaning with fn.
bool isTiling(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    constexpr std::uint16_t kFirstArrow = 123;
    constexpr std::uint16_t kLastArrow = 126;
    return ansiKeyCode >= kFirstArrow && ansiKeyCode <= kLastArrow &&
           (flags == 0xA40000 || flags == 0xA60000 || flags == 0xAE0000);
}

}  // namespace

std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    if (isTiling(ansiKeyCode, flags))
        return Obstacle{"The shortcut tiles windows, and that was not possible.", "See: kinesta doctor"};
    if (keyForShortcut(ansiKeyCode, flags))
        return std::nullopt;
    const std::string key = "The key with code " + std::to_string(ansiKeyCode);
    if (evdevKeyCode(ansiKeyCode))
        return Obstacle{key + " has no meaning together with fn on this desktop.", "Choose another shortcut."};
    return Obstacle{key + " is not on keyboards here.", "Choose another key."};
}

}  // namespace kinesta
