#pragma once

#include <cstdint>
#include <vector>

#include "platform/linux/windows/EwmhWindow.h"

namespace kinesta {

/// A monitor, and the part of it that docks and panels leave for windows.
struct EwmhMonitor {
    WindowRectangle bounds;
    WindowRectangle workArea;

    friend bool operator==(const EwmhMonitor&, const EwmhMonitor&) = default;
};

/// The desktop at one moment.
struct EwmhSnapshot {
    EwmhWindowId root = 0;
    /// 0 if no window is active.
    EwmhWindowId activeWindow = 0;
    std::uint32_t currentDesktop = 0;
    /// Whether the window manager does this for other programs. False if none runs.
    bool closesWindows = true;
    bool movesWindows = true;
    /// All managed windows on every desktop, lowest first.
    std::vector<EwmhWindow> windows;
    /// At least one.
    std::vector<EwmhMonitor> monitors;

    /// Null if there is no such window.
    const EwmhWindow* window(EwmhWindowId id) const;

    /// The monitor that shows the most of a rectangle; the first if none does.
    const EwmhMonitor& monitorOf(const WindowRectangle& rectangle) const;

    /// The modal dialogs that must be answered before `owner` can be used, including those of its group and of its
    /// dialogs; lowest first.
    std::vector<EwmhWindowId> modalDialogsOf(const EwmhWindow& owner) const;
};

}  // namespace kinesta
