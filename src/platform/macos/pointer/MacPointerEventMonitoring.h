#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "input/PointerEventMonitoring.h"

namespace kinesta {

/// Mouse buttons and pressure as the window server reports them. In a program without a window they arrive only while a
/// MacMainLoop runs. Main thread only.
class MacPointerEventMonitoring final : public PointerEventMonitoring {
  public:
    [[nodiscard]] PointerEventMonitor monitor(PointerEventScope scope, Handler handler) override;

  protected:
    void cancel(std::uint64_t id) override;

  private:
    struct Monitor;

    std::map<std::uint64_t, std::shared_ptr<Monitor>> m_monitors;
    std::uint64_t m_lastId = 0;
};

}  // namespace kinesta
