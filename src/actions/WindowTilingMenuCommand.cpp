#include "actions/WindowTilingMenuCommand.h"

#include <array>

#include "rules/CommonMacShortcut.h"

namespace kinesta {
namespace {

using Command = WindowTilingMenuCommand;

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

}  // namespace

template <>
std::span<const EnumRow<WindowTilingMenuCommand>> enumTable() {
    return kCommands;
}

std::optional<WindowTilingMenuCommand> windowTilingMenuCommand(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    const auto preset = CommonMacShortcut::actionTitle(keyCode, modifiers);
    for (const auto& row : kCommands)
        if (row.title == preset)
            return row.value;
    return std::nullopt;
}

}  // namespace kinesta
