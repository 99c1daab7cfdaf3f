#pragma once

#include <map>

#include "input/PadEvent.h"
#include "input/PointerEventMonitoring.h"

namespace kinesta {

/// Passes the clicks of a device or a recording to monitors. Main thread only.
class PointerEventBroadcaster final : public PointerEventMonitoring {
  public:
    [[nodiscard]] PointerEventMonitor monitor(PointerEventScope scope, Handler handler) override {
        m_monitors.emplace(++m_lastId, Monitor{scope, std::move(handler)});
        return {this, m_lastId};
    }

    /// Calls every monitor of the scope. Monitors may come and go meanwhile.
    void deliver(const PointerEvent& event, PointerEventScope scope = PointerEventScope::otherApplications) {
        for (std::uint64_t id = 0; const Monitor* next = after(id);) {
            if (next->scope == scope) {
                const Handler handler = next->handler;  // a copy: it may remove itself
                handler(event);
            }
        }
    }

    /// Delivers a press, release or pressure stage of a pad; ignores a frame.
    void deliver(const PadEvent& event) {
        if (const auto* button = std::get_if<PadButton>(&event.content))
            deliver(PointerEvent{
                .kind = *button == PadButton::down ? PointerEvent::Kind::leftDown : PointerEvent::Kind::leftUp,
                .timestamp = event.time});
        else if (const auto* pressure = std::get_if<PadPressure>(&event.content))
            deliver(
                PointerEvent{.kind = PointerEvent::Kind::pressure, .stage = pressure->stage, .timestamp = event.time});
    }

    std::size_t monitorCount() const { return m_monitors.size(); }

  protected:
    void cancel(std::uint64_t id) override { m_monitors.erase(id); }

  private:
    struct Monitor {
        PointerEventScope scope;
        Handler handler;
    };

    /// The monitor that was installed next after `id`, which becomes its id.
    const Monitor* after(std::uint64_t& id) const {
        const auto found = m_monitors.upper_bound(id);
        if (found == m_monitors.end())
            return nullptr;
        id = found->first;
        return &found->second;
    }

    std::uint64_t m_lastId = 0;
    std::map<std::uint64_t, Monitor> m_monitors;
};

}  // namespace kinesta
