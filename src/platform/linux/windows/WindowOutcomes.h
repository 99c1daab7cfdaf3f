#pragma once

#include <string>
#include <vector>

#include "app/WindowActionOutcomes.h"
#include "platform/linux/windows/AccessibilityBus.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// Checks what the window manager has done about each request.
class WindowOutcomes final : public WindowActionOutcomes {
  public:
    WindowOutcomes(EwmhDesktop& desktop, AccessibilityBus& programs) : m_desktop(desktop), m_programs(programs) {}

    void begin() override;
    Outcome settle(Seconds patience) override;
    std::string obstacle(Kind kind) override;

  private:
    Outcome outcomeNow();

    EwmhDesktop& m_desktop;
    AccessibilityBus& m_programs;
    std::vector<EwmhRequest> m_requests;
};

}  // namespace kinesta
