#pragma once

#include <string_view>

#include "actions/ActionPorts.h"

namespace kinesta {

/// Closes the focused window of the frontmost application by pressing its close button. Leaves the window alone if any
/// check fails. Posts no key and never prompts. Main thread only.
class WindowCloseExecutor {
  public:
    /// Limit of all requests to the application together, in seconds: a hanging one may not block us for longer.
    static constexpr Seconds kMessagingTimeout = 0.5;

    explicit WindowCloseExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Whether a close button was pressed.
    bool execute();

  private:
    bool closeOwnWindow();
    bool hasSheet(AccessibilityElement& window, Uptime deadline);
    AccessibilityValue attribute(std::string_view name, AccessibilityElement& element, Uptime deadline);
    /// Makes the next request to the element end by the deadline. False if there is no time left.
    bool limitRequestTime(AccessibilityElement& element, Uptime deadline);

    ActionPorts m_ports;
};

}  // namespace kinesta
