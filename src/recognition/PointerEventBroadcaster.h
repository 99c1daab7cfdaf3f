#pragma once

#include <map>

#include "recognition/PointerEventMonitoring.h"

namespace kinesta {

/// Pointer events for whoever monitors them, from a source that pushes them: a device, a recording. All of them count
/// as other applications' events. Main thread only.
class PointerEventBroadcaster final : public PointerEventMonitoring {
  public:
    [[nodiscard]] PointerEventMonitor monitor(PointerEventScope scope, Handler handler) override {
        m_monitors.emplace(++m_lastId, Monitor{scope, std::move(handler)});
        return {this, m_lastId};
    }

    /// Calls every monitor of other applications' events. Monitors may come and go meanwhile.
    void deliver(const PointerEvent& event) {
        for (std::uint64_t id = 0; const Monitor* next = after(id);) {
            if (next->scope == PointerEventScope::otherApplications) {
                const Handler handler = next->handler;  // a copy: it may remove itself
                handler(event);
            }
        }
    }

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
