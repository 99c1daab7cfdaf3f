#include "platform/linux/windows/WindowTiler.h"

#include <algorithm>

#include "platform/linux/windows/TilingGeometry.h"
#include "platform/linux/windows/TilingPlan.h"
#include "platform/linux/windows/TilingRecord.h"

namespace kinesta {
namespace {

using Command = WindowTilingMenuCommand;

/// The share of the remaining time in which the window manager may end maximization. The rest is for the steps after
/// that.
constexpr double kShareOfRestoring = 0.6;

bool isActive(ProcessIdentifier application, const EwmhSnapshot& desktop) {
    const EwmhWindow* active = desktop.window(desktop.activeWindow);
    return active != nullptr && active->process == application;
}

}  // namespace

bool WindowTiler::canPerform(Command command, ProcessIdentifier application, Seconds timeout) {
    const auto desktop = m_desktop.snapshot(timeout);
    return desktop && isActive(application, *desktop) && canTile(command, *desktop);
}

bool WindowTiler::perform(Command command, ProcessIdentifier application, Seconds timeout) {
    const auto deadline = deadlineIn(timeout);
    const auto desktop = m_desktop.snapshot(timeout);
    if (!desktop || !isActive(application, *desktop) || !canTile(command, *desktop))
        return false;
    if (command == Command::untile)
        return untile(*desktop, deadline);

    const auto participants = restored(tilingParticipants(command, *desktop), deadline);
    if (participants.empty() || participants[0].before.id != desktop->activeWindow)
        return false;

    const WindowRectangle area = desktop->monitorOf(participants[0].before.frame).workArea;
    auto places = tilingPlaces(command, area, participants.size());
    if (command == Command::center)
        places = {centered(participants[0].restored.frame.size(), area)};
    for (std::size_t i = 0; i < places.size(); ++i) {
        const EwmhWindow& window = participants[i].restored;
        const WindowRectangle frame = fitted(places[i], window.frameInsets, window.limits, area);
        auto record = TilingRecord::decoded(window.tilingRecord);
        if (!record || !record->describes(window))
            record = TilingRecord::of(participants[i].before, window);
        record->tiledFrame = frame;
        m_desktop.setTilingRecord(window.id, record->encoded());
        m_desktop.place(window, frame);
    }
    // Other windows may lie between them.
    for (std::size_t i = places.size(); places.size() > 1 && i-- > 0;)
        m_desktop.raise(participants[i].restored.id);
    m_desktop.flush();
    return true;
}

bool WindowTiler::untile(const EwmhSnapshot& desktop, Deadline deadline) {
    const EwmhWindow& active = *desktop.window(desktop.activeWindow);
    const auto record = TilingRecord::decoded(active.tilingRecord);
    if (!record)
        return true;
    const auto windows = restored({active}, deadline);
    if (windows.empty())
        return false;
    m_desktop.setTilingRecord(active.id, {});
    if (record->was(TilingRecord::inLayout) && m_desktop.returnToLayout(windows[0].restored)) {
        m_desktop.flush();
        return true;
    }
    const auto isInSight = [&](const EwmhMonitor& monitor) { return monitor.bounds.intersects(record->previousFrame); };
    if (std::any_of(desktop.monitors.begin(), desktop.monitors.end(), isInSight))
        m_desktop.place(windows[0].restored, record->previousFrame);
    else  // Its monitor is gone.
        m_desktop.place(windows[0].restored,
                        centered(record->previousFrame.size(), desktop.monitorOf(windows[0].before.frame).workArea));
    m_desktop.zoom(windows[0].restored, record->was(TilingRecord::fullscreen),
                   record->was(TilingRecord::maximizedHorizontally), record->was(TilingRecord::maximizedVertically));
    m_desktop.flush();
    return true;
}

std::vector<WindowTiler::Participant> WindowTiler::restored(const std::vector<EwmhWindow>& windows, Deadline deadline) {
    m_desktop.restore(windows, timeLeft(deadline) * kShareOfRestoring);
    std::vector<Participant> participants;
    for (const auto& window : windows) {
        if (!window.isZoomed())
            participants.push_back({window, window});
        else if (auto now = m_desktop.window(window.id, timeLeft(deadline)))
            participants.push_back({window, *now});
    }
    return participants;
}

}  // namespace kinesta
