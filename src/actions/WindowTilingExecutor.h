#pragma once

#include <string_view>

#include "actions/ActionPorts.h"
#include "actions/WindowTilingMenuCommand.h"

namespace kinesta {

/// Performs a window tiling command by pressing its item in the frontmost application's menu, which works even where
/// the shortcut itself would not reach the system. Whatever is not exactly as expected leaves the windows as they
/// are. Posts no key and asks for no permission. Main thread only; the budgets bound how long an application that
/// hangs can hold it up.
class WindowTilingExecutor {
  public:
    /// The major system version from which on applications offer the commands.
    static constexpr int kMinimumSystemVersion = 15;
    /// How long one search may take, in seconds.
    static constexpr Seconds kSearchBudget = 0.5;
    /// How long one request may wait for the application, in seconds, and never beyond what is left of the search.
    static constexpr Seconds kRequestTimeout = 0.15;
    /// How many elements one search visits.
    static constexpr int kElementBudget = 1000;
    /// How deep below the menu bar an element or a menu is looked at; the menu bar is at depth 0.
    static constexpr int kMaximumDepth = 12;

    explicit WindowTilingExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Whether the command's menu item was pressed.
    bool execute(WindowTilingMenuCommand command);

  private:
    bool executeLocalMenuCommand(WindowTilingMenuCommand command);

    /// The first element with the identifier, depth first, `element` itself included. Each visit takes one off
    /// `remainingElements`.
    AccessibilityElementHandle findMenuItem(std::string_view identifier, AccessibilityElementHandle element, int depth,
                                            int& remainingElements, Uptime deadline);

    /// The first item with the identifier, or with an action of that name, depth first.
    static std::unique_ptr<OwnMenuItem> localMenuItem(std::string_view identifier, OwnMenu& menu, int depth);

    /// Reads an attribute within what is left until the deadline; a failure once nothing is.
    AccessibilityValue attribute(std::string_view name, AccessibilityElement& element, Uptime deadline);

    /// Allows the next requests to the element what one may take now; false if nothing is left or it will not have it.
    bool limitRequestTime(AccessibilityElement& element, Uptime deadline);

    ActionPorts m_ports;
};

}  // namespace kinesta
