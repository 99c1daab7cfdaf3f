#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta {

/// What a window looked like before it was tiled, and where tiling put it. Kept with the window itself, so that it is
/// gone when the window is, and still there when we start again.
struct TilingRecord {
    /// The frame that it had, or would have had if it had not been maximized or fullscreen.
    WindowRectangle previousFrame{};
    bool wasFullscreen = false;
    bool wasMaximizedHorizontally = false;
    bool wasMaximizedVertically = false;
    WindowRectangle tiledFrame{};
    /// It had a place in the layout of a tiling window manager, and takes one again.
    bool wasInLayout = false;

    /// The record of a window that is tiled now: `before` in the state that it was in, `restored` without it.
    static TilingRecord of(const EwmhWindow& before, const EwmhWindow& restored);

    /// Whether the window is still where tiling put it. False once a person has moved or resized it.
    bool describes(const EwmhWindow& window) const;

    /// The numbers that a window property holds.
    std::vector<std::uint32_t> encoded() const;

    /// Nothing if the numbers are none that encoded() makes: any program can write there.
    static std::optional<TilingRecord> decoded(std::span<const std::uint32_t> numbers);

    friend bool operator==(const TilingRecord&, const TilingRecord&) = default;
};

}  // namespace kinesta
