#include "actions/WindowCloseExecutor.h"

#include <string>
#include <utility>

namespace kinesta {
namespace {

/// Null if the value is no element.
AccessibilityElementHandle elementOf(AccessibilityValue value) {
    auto* element = std::get_if<AccessibilityElementHandle>(&value);
    return element ? std::move(*element) : nullptr;
}

bool isText(const AccessibilityValue& value, std::string_view expected) {
    const auto* text = std::get_if<std::string>(&value);
    return text && *text == expected;
}

bool isTrue(const AccessibilityValue& value) {
    const auto* boolean = std::get_if<bool>(&value);
    return boolean && *boolean;
}

}  // namespace

bool WindowCloseExecutor::execute() {
    if (!m_ports.permission.isTrusted())
        return false;
    const auto application = m_ports.workspace.frontmostApplication();
    if (!application)
        return false;
    if (*application == m_ports.workspace.ownProcessIdentifier())
        return closeOwnWindow();

    const Uptime deadline = m_ports.clock.uptime() + kMessagingTimeout;
    const auto applicationElement = m_ports.accessibility.applicationElement(*application);
    if (!applicationElement)
        return false;
    applicationElement->setMessagingTimeout(kMessagingTimeout);
    auto window = elementOf(applicationElement->copyAttribute("AXFocusedWindow"));
    if (!window)
        window = elementOf(attribute("AXMainWindow", *applicationElement, deadline));
    if (!window || !isText(attribute("AXRole", *window, deadline), "AXWindow") ||
        isTrue(attribute("AXMinimized", *window, deadline)) || hasSheet(*window, deadline))
        return false;
    const auto button = elementOf(attribute("AXCloseButton", *window, deadline));
    if (!button || !isTrue(attribute("AXEnabled", *button, deadline)))
        return false;

    // The user may have switched applications meanwhile.
    if (m_ports.workspace.frontmostApplication() != application)
        return false;
    return limitRequestTime(*button, deadline) && button->performAction("AXPress");
}

bool WindowCloseExecutor::closeOwnWindow() {
    auto window = m_ports.ownWindows.keyWindow();
    if (!window)
        window = m_ports.ownWindows.mainWindow();
    if (!window || window->isPanel() || window->isMiniaturized() || window->hasAttachedSheet() ||
        !window->isCloseButtonEnabled())
        return false;
    window->performClose();
    return true;
}

AccessibilityValue WindowCloseExecutor::attribute(std::string_view name, AccessibilityElement& element,
                                                  Uptime deadline) {
    return limitRequestTime(element, deadline) ? element.copyAttribute(name) : AccessibilityFailure{};
}

// Each handle has a limit of its own, at first the long one of the system.
bool WindowCloseExecutor::limitRequestTime(AccessibilityElement& element, Uptime deadline) {
    const Seconds remaining = deadline - m_ports.clock.uptime();
    if (remaining > 0)
        element.setMessagingTimeout(remaining);
    return remaining > 0;
}

bool WindowCloseExecutor::hasSheet(AccessibilityElement& window, Uptime deadline) {
    const auto children = attribute("AXChildren", window, deadline);
    if (std::holds_alternative<AccessibilityFailure>(children))
        return false;
    const auto* list = std::get_if<AccessibilityList>(&children);
    // Cautious: an unknown value could hide a sheet.
    if (!list)
        return true;
    for (const auto& child : list->items)
        if (child && isText(attribute("AXRole", *child, deadline), "AXSheet"))
            return true;
    return false;
}

}  // namespace kinesta
