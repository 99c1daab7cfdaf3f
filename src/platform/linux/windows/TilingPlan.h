#pragma once

#include <vector>

#include "actions/WindowTilingMenuCommand.h"
#include "platform/linux/windows/EwmhSnapshot.h"

namespace kinesta {

/// Whether a command can do something with the active window of the desktop. `untile` can whenever the window may be
/// moved and resized: one that was never tiled has its previous size already.
bool canTile(WindowTilingMenuCommand command, const EwmhSnapshot& desktop);

/// The windows that a command arranges: the active one and, if it arranges several, the next ones below it on its
/// monitor and desktop, the upper first. Only ordinary windows that are in sight and may be moved and resized. Fewer
/// than the command wants where there are no more; none if canTile() says no.
std::vector<EwmhWindow> tilingParticipants(WindowTilingMenuCommand command, const EwmhSnapshot& desktop);

}  // namespace kinesta
