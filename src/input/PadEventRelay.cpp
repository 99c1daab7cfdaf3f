#include "input/PadEventRelay.h"

#include <utility>

namespace kinesta {

void PadEventRelay::setWatcher(Watcher watcher) {
    m_watcher = watcher ? std::make_shared<const Watcher>(std::move(watcher)) : nullptr;
    m_isWatched.store(m_watcher != nullptr, std::memory_order_relaxed);
    // What waits is not for the new watcher.
    const std::lock_guard lock(m_lock);
    m_waiting.clear();
}

void PadEventRelay::add(PadEvent event) {
    if (auto* frame = std::get_if<PadFrame>(&event.content))
        frame->received = m_clock.uptime();
    const std::lock_guard lock(m_lock);
    m_waiting.push_back(std::move(event));
    if (!std::exchange(m_isHandOverPosted, true))
        m_mainThread.post([self = std::weak_ptr(m_self)] {
            if (const auto relay = self.lock())
                (*relay)->handOver();
        });
}

void PadEventRelay::handOver() {
    std::vector<PadEvent> events = std::move(m_taken);
    events.clear();
    {
        const std::lock_guard lock(m_lock);
        events.swap(m_waiting);
        m_isHandOverPosted = false;
    }
    for (const PadEvent& event : events)
        if (const auto watcher = m_watcher)  // it may end the watching
            (*watcher)(event);
    m_taken = std::move(events);
}

}  // namespace kinesta
