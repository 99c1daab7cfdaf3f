#include "platform/linux/windows/TilingPlan.h"

#include <algorithm>

#include "platform/linux/windows/TilingGeometry.h"

namespace kinesta {
namespace {

bool isOrdinary(const EwmhWindow& window, const EwmhSnapshot& desktop) {
    return window.type == EwmhWindowType::normal && !window.isModal && !window.isHidden && window.mayMove &&
           window.isOn(desktop.currentDesktop);
}

bool isResizable(const EwmhWindow& window) { return window.mayResize && !window.limits.isFixed(); }

/// Excludes desktop widgets that claim to be ordinary windows: tiling another window should not move them.
bool mayJoin(const EwmhWindow& window, const EwmhSnapshot& desktop) {
    return isOrdinary(window, desktop) && isResizable(window) && !window.skipsTaskbar;
}

}  // namespace

bool canTile(WindowTilingMenuCommand command, const EwmhSnapshot& desktop) {
    const EwmhWindow* active = desktop.window(desktop.activeWindow);
    return desktop.movesWindows && active != nullptr && isOrdinary(*active, desktop) &&
           (command == WindowTilingMenuCommand::center || isResizable(*active));
}

std::vector<EwmhWindow> tilingParticipants(WindowTilingMenuCommand command, const EwmhSnapshot& desktop) {
    if (!canTile(command, desktop))
        return {};
    const EwmhWindow* active = desktop.window(desktop.activeWindow);
    const EwmhMonitor& monitor = desktop.monitorOf(active->frame);
    std::vector<EwmhWindow> participants{*active};
    for (auto each = desktop.windows.rbegin(); each != desktop.windows.rend(); ++each) {
        if (participants.size() >= tilingWindowCount(command))
            break;
        if (each->id != active->id && mayJoin(*each, desktop) && desktop.monitorOf(each->frame) == monitor)
            participants.push_back(*each);
    }
    return participants;
}

}  // namespace kinesta
