#pragma once

#include <cstddef>
#include <vector>

#include "actions/WindowTilingMenuCommand.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/windows/WindowSizeLimits.h"

namespace kinesta {

/// How many windows a command arranges when there are enough: 1, 2 or 3.
std::size_t tilingWindowCount(WindowTilingMenuCommand command);

/// Where a command puts `windowCount` windows in `area`, the active window first. Places meet without gap or overlap;
/// of an odd size, the right or lower part gets the pixel more. With fewer windows than the command arranges, those
/// that are there take what a two-window command, or half the area for a lone one, would give them; windows beyond
/// what it arranges get no place. None at all for `center` and `untile`, whose places depend on the window.
std::vector<WindowRectangle> tilingPlaces(WindowTilingMenuCommand command, const WindowRectangle& area,
                                          std::size_t windowCount);

/// A rectangle of `size` in the middle of `area`, cut down to what the area holds.
WindowRectangle centered(WindowSize size, const WindowRectangle& area);

/// The frame of a window that is given `place`: a size that it accepts, at most the place's where its limits allow
/// that, and moved so that even a window too large for the place leaves `area` as little as it can, its upper left
/// corner never. `frame` is what its frame adds.
WindowRectangle fitted(const WindowRectangle& place, const WindowInsets& frame, const WindowSizeLimits& limits,
                       const WindowRectangle& area);

}  // namespace kinesta
