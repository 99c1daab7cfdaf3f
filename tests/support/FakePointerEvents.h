#pragma once

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "recognition/PointerEventMonitoring.h"

namespace kinesta::testing {

/// Pointer events sent by the test.
class FakePointerEvents final : public PointerEventMonitoring {
  public:
    ~FakePointerEvents() override { EXPECT_TRUE(m_monitors.empty()) << "a monitor was left behind"; }

    [[nodiscard]] PointerEventMonitor monitor(PointerEventScope scope, Handler handler) override {
        m_monitors.emplace(++m_lastId, std::pair(scope, std::move(handler)));
        return {this, m_lastId};
    }

    std::size_t monitorCount() const { return m_monitors.size(); }

    void send(const PointerEvent& event, PointerEventScope scope = PointerEventScope::otherApplications) {
        const auto monitors = m_monitors;
        for (const auto& [id, monitor] : monitors)
            if (monitor.first == scope && m_monitors.contains(id))
                monitor.second(event);
    }

  protected:
    void cancel(std::uint64_t id) override { m_monitors.erase(id); }

  private:
    std::uint64_t m_lastId = 0;
    std::map<std::uint64_t, std::pair<PointerEventScope, Handler>> m_monitors;
};

}  // namespace kinesta::testing
