#include "actions/WindowTilingMenuCommand.h"

#include <array>

namespace kinesta {
namespace {

using Command = WindowTilingMenuCommand;

struct Shortcut {
    std::uint16_t keyCode;
    ShortcutModifiers modifiers;
};

constexpr std::uint16_t kF = 3;
constexpr std::uint16_t kC = 8;
constexpr std::uint16_t kR = 15;
constexpr std::uint16_t kLeft = 123;
constexpr std::uint16_t kRight = 124;
constexpr std::uint16_t kDown = 125;
constexpr std::uint16_t kUp = 126;

constexpr ShortcutModifiers kTile = ShortcutModifiers::control | ShortcutModifiers::function;
constexpr ShortcutModifiers kArrangeTwo = kTile | ShortcutModifiers::shift;
constexpr ShortcutModifiers kArrangeThree = kArrangeTwo | ShortcutModifiers::option;

constexpr std::array<EnumRow<Command>, 15> kCommands{{
    {Command::fill, "_zoomFill:", "Fill Desktop"},
    {Command::center, "_zoomCenter:", "Center Window"},
    {Command::left, "_zoomLeft:", "Tile Left Half"},
    {Command::right, "_zoomRight:", "Tile Right Half"},
    {Command::top, "_zoomTop:", "Tile Top Half"},
    {Command::bottom, "_zoomBottom:", "Tile Bottom Half"},
    {Command::untile, "_zoomUntile:", "Return to Previous Size"},
    {Command::leftAndRight, "_zoomLeftAndRight:", "Arrange Left & Right"},
    {Command::rightAndLeft, "_zoomRightAndLeft:", "Arrange Right & Left"},
    {Command::topAndBottom, "_zoomTopAndBottom:", "Arrange Top & Bottom"},
    {Command::bottomAndTop, "_zoomBottomAndTop:", "Arrange Bottom & Top"},
    {Command::leftThreeUp, "_zoomLeftThreeUp:", "Left & Two Quarters"},
    {Command::rightThreeUp, "_zoomRightThreeUp:", "Right & Two Quarters"},
    {Command::topThreeUp, "_zoomTopThreeUp:", "Top & Two Quarters"},
    {Command::bottomThreeUp, "_zoomBottomThreeUp:", "Bottom & Two Quarters"},
}};

// In the order of the cases.
constexpr std::array<Shortcut, kCommands.size()> kShortcuts{{
    {kF, kTile},
    {kC, kTile},
    {kLeft, kTile},
    {kRight, kTile},
    {kUp, kTile},
    {kDown, kTile},
    {kR, kTile},
    {kLeft, kArrangeTwo},
    {kRight, kArrangeTwo},
    {kUp, kArrangeTwo},
    {kDown, kArrangeTwo},
    {kLeft, kArrangeThree},
    {kRight, kArrangeThree},
    {kUp, kArrangeThree},
    {kDown, kArrangeThree},
}};

}  // namespace

template <>
std::span<const EnumRow<WindowTilingMenuCommand>> enumTable() {
    return kCommands;
}

std::optional<WindowTilingMenuCommand> windowTilingMenuCommand(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    for (std::size_t i = 0; i < kShortcuts.size(); ++i)
        if (kShortcuts[i].keyCode == keyCode && kShortcuts[i].modifiers == modifiers)
            return kCommands[i].value;
    return std::nullopt;
}

}  // namespace kinesta
