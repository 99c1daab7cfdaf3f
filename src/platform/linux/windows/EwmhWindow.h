#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

#include "actions/Workspace.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/windows/WindowSizeLimits.h"

namespace kinesta {

/// The X server's identifier of a window; 0 means none.
using EwmhWindowId = std::uint32_t;

/// What a window is for. `other` is everything that a person neither works in nor answers: docks, desktops, panels,
/// palettes, menus, splash screens, notifications.
enum class EwmhWindowType { normal, dialog, other };

/// Space along one edge of the whole screen that a dock reserves, in pixels. It runs along the edge from `from` to
/// `to`, both included.
struct EwmhStrut {
    int width = 0;
    int from = 0;
    int to = 0;

    friend bool operator==(const EwmhStrut&, const EwmhStrut&) = default;
};

struct EwmhStruts {
    EwmhStrut left{};
    EwmhStrut right{};
    EwmhStrut top{};
    EwmhStrut bottom{};

    friend bool operator==(const EwmhStruts&, const EwmhStruts&) = default;
};

/// A window at one moment, as the window manager, the server and the window itself describe it.
struct EwmhWindow {
    static constexpr std::uint32_t kAllDesktops = 0xFFFFFFFF;

    EwmhWindowId id = 0;
    /// The process that shows it. A negative number for its X client if the process is unknown.
    ProcessIdentifier process = 0;
    EwmhWindowType type = EwmhWindowType::normal;

    bool isHidden = false;
    bool isModal = false;
    bool isFullscreen = false;
    bool isMaximizedHorizontally = false;
    bool isMaximizedVertically = false;
    bool skipsTaskbar = false;
    /// Whether it has a place in the layout of a tiling window manager.
    bool isInLayout = false;

    bool mayClose = true;
    bool mayMove = true;
    bool mayResize = true;

    /// The window that this one belongs to, 0 if it names none. The root window means its whole group.
    EwmhWindowId transientFor = 0;
    /// The leader of its group of windows, 0 if it is in none.
    EwmhWindowId group = 0;
    std::uint32_t desktop = kAllDesktops;

    /// What a person sees of it: with title bar and borders, without shadows.
    WindowRectangle frame;
    /// The distance between `frame` and the window proper.
    WindowInsets frameInsets;
    /// The margin around `frame` for shadows that the window draws itself.
    WindowInsets shadow;
    WindowSizeLimits limits;
    /// Whether positions in requests mean the window proper instead of its frame.
    bool hasStaticGravity = false;
    std::optional<EwmhStruts> struts;
    /// The encoded TilingRecord stored with the window; empty if there is none.
    std::vector<std::uint32_t> tilingRecord;

    bool isOn(std::uint32_t someDesktop) const { return desktop == kAllDesktops || desktop == someDesktop; }
    bool isZoomed() const { return isFullscreen || isMaximizedHorizontally || isMaximizedVertically; }

    /// Whether its frame is where a request has put it. Window managers put some windows a few pixels away, and
    /// terminals snap to their character cells.
    bool isPlacedAt(const WindowRectangle& requested) const {
        constexpr int kTolerance = 8;
        const auto isNear = [](int a, int b, int step) { return std::abs(a - b) <= kTolerance + step; };
        const WindowSize& step = limits.increment;
        return isNear(frame.x, requested.x, step.width) && isNear(frame.y, requested.y, step.height) &&
               isNear(frame.width, requested.width, step.width) && isNear(frame.height, requested.height, step.height);
    }
};

}  // namespace kinesta
