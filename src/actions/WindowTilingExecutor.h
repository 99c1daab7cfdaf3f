#pragma once

#include <string_view>

#include "actions/ActionPorts.h"
#include "actions/WindowTilingMenuCommand.h"

namespace kinesta {

/// Performs a window tiling command by pressing its item in the frontmost application's menu, which works even where
/// the shortcut would not reach the system. Leaves the windows alone if any check fails. Posts no key and never
/// prompts. Main thread only; the budgets limit how long a hanging application can block it.
class WindowTilingExecutor {
  public:
    /// The first major system version with the commands.
    static constexpr int kMinimumSystemVersion = 15;
    /// Limit of one search, in seconds.
    static constexpr Seconds kSearchBudget = 0.5;
    /// Limit of one request, in seconds, and never more than the search has left.
    static constexpr Seconds kRequestTimeout = 0.15;
    /// Most elements visited by one search.
    static constexpr int kElementBudget = 1000;
    /// Greatest depth of a visited element or menu; the menu bar is at depth 0.
    static constexpr int kMaximumDepth = 12;

    explicit WindowTilingExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Whether the command's menu item was pressed.
    bool execute(WindowTilingMenuCommand command);

  private:
    bool executeLocalMenuCommand(WindowTilingMenuCommand command);

    /// The first element with the identifier, depth first, starting with `element`. Each visit decrements
    /// `remainingElements`.
    AccessibilityElementHandle findMenuItem(std::string_view identifier, AccessibilityElementHandle element, int depth,
                                            int& remainingElements, Uptime deadline);

    /// The first item with this identifier or action name, depth first.
    static std::unique_ptr<OwnMenuItem> localMenuItem(std::string_view identifier, OwnMenu& menu, int depth);

    /// Reads an attribute within the time left. Fails after the deadline.
    AccessibilityValue attribute(std::string_view name, AccessibilityElement& element, Uptime deadline);

    /// Limits the next requests to the element. False after the deadline or if the timeout cannot be set.
    bool limitRequestTime(AccessibilityElement& element, Uptime deadline);

    ActionPorts m_ports;
};

}  // namespace kinesta
