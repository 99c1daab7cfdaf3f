#pragma once

#include <vector>

#include "actions/WindowTilingMenuCommand.h"
#include "platform/linux/windows/EwmhSnapshot.h"

namespace kinesta {

/// Whether a command can do something with the active window. `untile` can whenever the window may be moved and
/// resized: a window that was never tiled already has its previous size.
bool canTile(WindowTilingMenuCommand command, const EwmhSnapshot& desktop);

/// The windows that a command arranges: the active one and, if it arranges several, the next ones below it on its
/// monitor and desktop, topmost first. The others are ordinary visible windows that may be moved and resized. Fewer
/// than the command arranges if there are no more; none if canTile() returns false.
std::vector<EwmhWindow> tilingParticipants(WindowTilingMenuCommand command, const EwmhSnapshot& desktop);

}  // namespace kinesta
