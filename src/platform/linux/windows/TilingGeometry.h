#pragma once

#include <cstddef>
#include <vector>

#include "actions/WindowTilingMenuCommand.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/windows/WindowSizeLimits.h"

namespace kinesta {

/// How many windows a command arranges if there are enough: 1, 2 or 3.
std::size_t tilingWindowCount(WindowTilingMenuCommand command);

/// Where a command puts `windowCount` windows in `area`, the active window first. Places meet without gap or overlap;
/// if a size is odd, the right or lower part gets the extra pixel. If there are fewer windows than the command
/// arranges, they get the places of a two-window command, or half the area for a single window. Windows beyond the
/// number that it arranges get no place. Empty for `center` and `untile`, whose places depend on the window.
std::vector<WindowRectangle> tilingPlaces(WindowTilingMenuCommand command, const WindowRectangle& area,
                                          std::size_t windowCount);

/// A rectangle of `size` in the middle of `area`, cut to the size of `area`.
WindowRectangle centered(WindowSize size, const WindowRectangle& area);

/// The frame of a window that is given `place`, in a size that the window accepts: no larger than the place if its
/// limits allow that. A window that is too large is moved so that it leaves `area` as little as possible, and never at
/// the upper left corner. `frame` is what its frame adds.
WindowRectangle fitted(const WindowRectangle& place, const WindowInsets& frame, const WindowSizeLimits& limits,
                       const WindowRectangle& area);

}  // namespace kinesta
