#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "actions/Workspace.h"
#include "platform/linux/windows/WindowRectangle.h"
#include "platform/linux/windows/WindowSizeLimits.h"

namespace kinesta {

/// The X server's number of a window; 0 is none.
using EwmhWindowId = std::uint32_t;

/// What a window is for. `other` is everything that is neither worked in nor answered: docks, desktops, panels,
/// palettes, menus, splash screens, notifications.
enum class EwmhWindowType { normal, dialog, other };

/// Room along one edge of the whole screen that a dock keeps for itself, in pixels. `from` and `to` are where along
/// the edge it begins and ends, both included.
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

/// What the window manager, the server and the window itself say of a window at one moment.
struct EwmhWindow {
    static constexpr std::uint32_t kAllDesktops = 0xFFFFFFFF;

    EwmhWindowId id = 0;
    /// The process that shows it; a number below 0 for its X client where the process cannot be known.
    ProcessIdentifier process = 0;
    EwmhWindowType type = EwmhWindowType::normal;

    bool isHidden = false;
    bool isModal = false;
    bool isFullscreen = false;
    bool isMaximizedHorizontally = false;
    bool isMaximizedVertically = false;
    bool skipsTaskbar = false;
    /// It has a place in the layout of a tiling window manager.
    bool isInLayout = false;

    bool mayClose = true;
    bool mayMove = true;
    bool mayResize = true;

    /// The window that this one belongs to, 0 if it names none; the root window stands for its whole group.
    EwmhWindowId transientFor = 0;
    /// The leader of its group of windows, 0 if it is in none.
    EwmhWindowId group = 0;
    std::uint32_t desktop = kAllDesktops;

    /// What a person sees of it, title bar and borders included, shadows not.
    WindowRectangle frame;
    /// What lies between `frame` and the window proper.
    WindowInsets frameInsets;
    /// What the window keeps around `frame` for shadows that it draws itself.
    WindowInsets shadow;
    WindowSizeLimits limits;
    /// Its positions are meant as those of the window proper, not of its frame.
    bool hasStaticGravity = false;
    std::optional<EwmhStruts> struts;
    /// What the property holds in which tiling keeps where the window was; empty if it is not there.
    std::vector<std::uint32_t> tilingRecord;

    bool isOn(std::uint32_t someDesktop) const { return desktop == kAllDesktops || desktop == someDesktop; }
    bool isZoomed() const { return isFullscreen || isMaximizedHorizontally || isMaximizedVertically; }
};

}  // namespace kinesta
