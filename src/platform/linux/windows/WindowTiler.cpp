#include "platform/linux/windows/WindowTiler.h"

#include <algorithm>
#include <chrono>

#include "platform/linux/windows/TilingGeometry.h"
#include "platform/linux/windows/TilingPlan.h"
#include "platform/linux/windows/TilingRecord.h"

namespace kinesta {
namespace {

using Command = WindowTilingMenuCommand;

/// Which part of the time that is left the window manager gets to end maximization; the rest is for what follows.
constexpr double kShareOfRestoring = 0.6;

Seconds timeLeft(EwmhConnection::Deadline deadline) {
    const std::chrono::duration<double> left = deadline - std::chrono::steady_clock::now();
    return std::max(0.0, left.count());
}

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
    const auto deadline = EwmhConnection::deadlineIn(timeout);
    const auto desktop = m_desktop.snapshot(timeout);
    if (!desktop || !isActive(application, *desktop) || !canTile(command, *desktop))
        return false;
    if (command == Command::untile)
        return untile(*desktop, deadline);

    const auto participants = restored(tilingParticipants(command, *desktop), deadline);
    if (participants.empty() || participants[0].before.id != desktop->activeWindow)
        return false;
    std::vector<EwmhWindowId> ids;
    for (const auto& each : participants)
        ids.push_back(each.restored.id);
    const auto records = m_desktop.tilingRecords(ids, timeLeft(deadline));

    const WindowRectangle area = desktop->monitorOf(participants[0].before.frame).workArea;
    auto places = tilingPlaces(command, area, participants.size());
    if (command == Command::center)
        places = {centered(participants[0].restored.frame.size(), area)};
    for (std::size_t i = 0; i < places.size(); ++i) {
        const EwmhWindow& window = participants[i].restored;
        const WindowRectangle frame = fitted(places[i], window.frameInsets, window.limits, area);
        auto record = records[i] ? TilingRecord::decoded(*records[i]) : std::nullopt;
        if (!record || !record->describes(window))
            record = TilingRecord::of(participants[i].before, window);
        record->tiledFrame = frame;
        m_desktop.setTilingRecord(window.id, record->encoded());
        m_desktop.place(window, frame);
    }
    // Something that took no part may lie between them.
    for (std::size_t i = places.size(); places.size() > 1 && i-- > 0;)
        m_desktop.raise(participants[i].restored.id);
    m_desktop.flush();
    return true;
}

bool WindowTiler::untile(const EwmhSnapshot& desktop, EwmhConnection::Deadline deadline) {
    const EwmhWindowId id = desktop.activeWindow;
    const auto numbers = m_desktop.tilingRecords({&id, 1}, timeLeft(deadline))[0];
    const auto record = numbers ? TilingRecord::decoded(*numbers) : std::nullopt;
    if (!record)
        return true;
    const auto windows = restored({*desktop.window(id)}, deadline);
    if (windows.empty())
        return false;
    m_desktop.setTilingRecord(id, {});
    if (record->wasInLayout && m_desktop.returnToLayout(windows[0].restored)) {
        m_desktop.flush();
        return true;
    }
    const auto isInSight = [&](const EwmhMonitor& monitor) { return monitor.bounds.intersects(record->previousFrame); };
    if (std::any_of(desktop.monitors.begin(), desktop.monitors.end(), isInSight))
        m_desktop.place(windows[0].restored, record->previousFrame);
    else  // Its monitor is gone.
        m_desktop.place(windows[0].restored,
                        centered(record->previousFrame.size(), desktop.monitorOf(windows[0].before.frame).workArea));
    m_desktop.zoom(windows[0].restored, record->wasFullscreen, record->wasMaximizedHorizontally,
                   record->wasMaximizedVertically);
    m_desktop.flush();
    return true;
}

std::vector<WindowTiler::Participant> WindowTiler::restored(const std::vector<EwmhWindow>& windows,
                                                            EwmhConnection::Deadline deadline) {
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
