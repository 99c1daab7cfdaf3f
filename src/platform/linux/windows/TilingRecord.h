#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/windows/WindowRectangle.h"

namespace kinesta {

/// What a window looked like before it was tiled, and where tiling put it. Stored with the window itself, so that it
/// goes away with the window and is still there when Kinesta restarts.
struct TilingRecord {
    /// What the window was, each one bit of `states`. `inLayout`: it had a place in the layout of a tiling window
    /// manager, to which it returns.
    enum State : std::uint32_t { fullscreen = 1, maximizedHorizontally = 2, maximizedVertically = 4, inLayout = 8 };

    /// The items of the window property: the members below in their order.
    using Numbers = std::array<std::uint32_t, 9>;

    /// The frame that it had, or would have had without maximization and fullscreen.
    WindowRectangle previousFrame{};
    WindowRectangle tiledFrame{};
    std::uint32_t states = 0;

    /// The record for a window that is being tiled. `before` is the window in its earlier state, `restored` the window
    /// after it stopped being maximized or fullscreen.
    static TilingRecord of(const EwmhWindow& before, const EwmhWindow& restored);

    bool was(State state) const { return (states & state) != 0; }

    /// Whether the window is still where tiling put it. False once a person has moved or resized it.
    bool describes(const EwmhWindow& window) const { return window.isPlacedAt(tiledFrame); }

    Numbers encoded() const;

    /// Nothing if encoded() cannot have made these numbers: any program can write to the property.
    static std::optional<TilingRecord> decoded(std::span<const std::uint32_t> numbers);

    friend bool operator==(const TilingRecord&, const TilingRecord&) = default;
};

}  // namespace kinesta
