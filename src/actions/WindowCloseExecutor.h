#pragma once

#include <string_view>

#include "actions/ActionPorts.h"

namespace kinesta {

/// Closes the focused window of the frontmost application by pressing its close button. Leaves the window alone if any
/// check fails. Posts no key and never prompts. Main thread only.
class WindowCloseExecutor {
  public:
    /// Limit of each request to the application, in seconds.
    static constexpr Seconds kMessagingTimeout = 0.5;

    explicit WindowCloseExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Whether a close button was pressed.
    bool execute();

  private:
    bool closeOwnWindow();
    static AccessibilityElementHandle elementAttribute(std::string_view name, AccessibilityElement& element);
    static bool hasSheet(AccessibilityElement& window);

    ActionPorts m_ports;
};

}  // namespace kinesta
