#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta {

/// What a window looked like before it was tiled, and where tiling put it. Stored with the window itself, so that it
/// goes away with the window and is still there when Kinesta restarts.
struct TilingRecord {
    /// The frame that it had, or would have had without maximization and fullscreen.
    WindowRectangle previousFrame{};
    bool wasFullscreen = false;
    bool wasMaximizedHorizontally = false;
    bool wasMaximizedVertically = false;
    WindowRectangle tiledFrame{};
    /// Whether it had a place in the layout of a tiling window manager, to which it returns.
    bool wasInLayout = false;

    /// The record for a window that is being tiled. `before` is the window in its earlier state, `restored` the window
    /// after it stopped being maximized or fullscreen.
    static TilingRecord of(const EwmhWindow& before, const EwmhWindow& restored);

    /// Whether the window is still where tiling put it. False once a person has moved or resized it.
    bool describes(const EwmhWindow& window) const;

    /// The items of the window property.
    std::vector<std::uint32_t> encoded() const;

    /// Nothing if encoded() cannot have made these numbers: any program can write to the property.
    static std::optional<TilingRecord> decoded(std::span<const std::uint32_t> numbers);

    friend bool operator==(const TilingRecord&, const TilingRecord&) = default;
};

}  // namespace kinesta
