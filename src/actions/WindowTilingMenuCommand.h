#pragma once

#include <cstdint>
#include <optional>

#include "rules/ShortcutModifiers.h"
#include "support/EnumTable.h"

namespace kinesta {

/// A window tiling command that applications offer in their Window menu. The raw value is both the name of the menu
/// item's action and the item's identifier; the title is that of the preset shortcut.
enum class WindowTilingMenuCommand {
    fill,
    center,
    left,
    right,
    top,
    bottom,
    untile,
    leftAndRight,
    rightAndLeft,
    topAndBottom,
    bottomAndTop,
    leftThreeUp,
    rightThreeUp,
    topThreeUp,
    bottomThreeUp,
};

template <>
std::span<const EnumRow<WindowTilingMenuCommand>> enumTable();

/// The command whose shortcut has exactly this key and these modifiers.
std::optional<WindowTilingMenuCommand> windowTilingMenuCommand(std::uint16_t keyCode, ShortcutModifiers modifiers);

}  // namespace kinesta
