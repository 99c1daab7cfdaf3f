#include "platform/linux/windows/EwmhWorkAreas.h"

#include <algorithm>

namespace kinesta {
namespace {

/// The space that a dock reserves, as rectangles on the screen; empty for edges that it leaves alone.
struct KeptEdges {
    WindowRectangle left;
    WindowRectangle right;
    WindowRectangle top;
    WindowRectangle bottom;
};

KeptEdges keptEdges(const EwmhStruts& struts, const WindowRectangle& screen) {
    const auto length = [](const EwmhStrut& strut) { return strut.to - strut.from + 1; };
    return {
        {screen.x, struts.left.from, struts.left.width, length(struts.left)},
        {screen.right() - struts.right.width, struts.right.from, struts.right.width, length(struts.right)},
        {struts.top.from, screen.y, length(struts.top), struts.top.width},
        {struts.bottom.from, screen.bottom() - struts.bottom.width, length(struts.bottom), struts.bottom.width},
    };
}

// Each function moves one edge of `area` inward to `limit`, unless it is already that far in.
void cutLeft(WindowRectangle& area, int limit) {
    const int right = area.right();
    area.x = std::max(area.x, limit);
    area.width = right - area.x;
}
void cutTop(WindowRectangle& area, int limit) {
    const int bottom = area.bottom();
    area.y = std::max(area.y, limit);
    area.height = bottom - area.y;
}
void cutRight(WindowRectangle& area, int limit) { area.width = std::min(area.right(), limit) - area.x; }
void cutBottom(WindowRectangle& area, int limit) { area.height = std::min(area.bottom(), limit) - area.y; }

std::vector<const EwmhWindow*> docks(const EwmhWorkAreaSources& sources) {
    std::vector<const EwmhWindow*> found;
    for (const auto& window : sources.windows)
        if (window.struts && !window.isHidden && window.isOn(sources.currentDesktop))
            found.push_back(&window);
    return found;
}

/// Struts are measured from the edges of the whole screen, so a dock on an inner edge seems to cover all of the
/// monitors beside it. Only the monitors that show the dock lose space to it.
bool showsDock(const WindowRectangle& monitor, const EwmhWindow& dock, const EwmhWorkAreaSources& sources) {
    const bool isOnAnyMonitor =
        std::any_of(sources.monitors.begin(), sources.monitors.end(),
                    [&dock](const WindowRectangle& each) { return each.intersects(dock.frame); });
    return !isOnAnyMonitor || monitor.intersects(dock.frame);
}

WindowRectangle withoutDocks(const WindowRectangle& monitor, const EwmhWorkAreaSources& sources) {
    WindowRectangle area = monitor;
    for (const EwmhWindow* dock : docks(sources)) {
        if (!showsDock(monitor, *dock, sources))
            continue;
        const KeptEdges kept = keptEdges(*dock->struts, sources.screen);
        WindowRectangle cut = area;
        if (kept.left.intersects(monitor))
            cutLeft(cut, kept.left.right());
        if (kept.right.intersects(monitor))
            cutRight(cut, kept.right.x);
        if (kept.top.intersects(monitor))
            cutTop(cut, kept.top.bottom());
        if (kept.bottom.intersects(monitor))
            cutBottom(cut, kept.bottom.y);
        if (!cut.isEmpty())
            area = cut;
    }
    return area;
}

/// Also cuts off what the window manager reserves at the screen's edges without a dock there (its own margins or
/// panel). Affects only the monitors at those edges.
WindowRectangle withoutMargins(WindowRectangle area, const WindowRectangle& monitor,
                               const EwmhWorkAreaSources& sources) {
    const WindowRectangle& screen = sources.screen;
    const WindowRectangle& left = *sources.screenWorkArea;
    EwmhStruts widest;
    for (const EwmhWindow* dock : docks(sources)) {
        widest.left.width = std::max(widest.left.width, dock->struts->left.width);
        widest.right.width = std::max(widest.right.width, dock->struts->right.width);
        widest.top.width = std::max(widest.top.width, dock->struts->top.width);
        widest.bottom.width = std::max(widest.bottom.width, dock->struts->bottom.width);
    }
    if (monitor.x == screen.x && left.x - screen.x > widest.left.width)
        cutLeft(area, left.x);
    if (monitor.right() == screen.right() && screen.right() - left.right() > widest.right.width)
        cutRight(area, left.right());
    if (monitor.y == screen.y && left.y - screen.y > widest.top.width)
        cutTop(area, left.y);
    if (monitor.bottom() == screen.bottom() && screen.bottom() - left.bottom() > widest.bottom.width)
        cutBottom(area, left.bottom());
    return area;
}

WindowRectangle workArea(const WindowRectangle& monitor, const EwmhWorkAreaSources& sources) {
    WindowRectangle largest;
    for (const auto& each : sources.monitorWorkAreas) {
        const auto part = each.intersection(monitor);
        if (static_cast<long>(part.width) * part.height > static_cast<long>(largest.width) * largest.height)
            largest = part;
    }
    if (!largest.isEmpty())
        return largest;
    const bool hasScreenWorkArea = sources.screenWorkArea && sources.screenWorkArea->intersects(monitor);
    // With a single monitor, the area from the window manager is best: it also accounts for docks that hide themselves.
    if (hasScreenWorkArea && sources.monitors.size() == 1)
        return monitor.intersection(*sources.screenWorkArea);
    const WindowRectangle area = withoutDocks(monitor, sources);
    if (!hasScreenWorkArea)
        return area;
    const WindowRectangle inner = withoutMargins(area, monitor, sources);
    return inner.isEmpty() ? area : inner;
}

}  // namespace

std::vector<EwmhMonitor> ewmhWorkAreas(const EwmhWorkAreaSources& sources) {
    std::vector<EwmhMonitor> monitors;
    for (const auto& bounds : sources.monitors)
        monitors.push_back({bounds, workArea(bounds, sources)});
    return monitors;
}

}  // namespace kinesta
