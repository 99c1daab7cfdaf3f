#include "actions/WindowCloseExecutor.h"

#include <string>
#include <utility>

namespace kinesta {
namespace {

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

    const auto applicationElement = m_ports.accessibility.applicationElement(*application);
    if (!applicationElement)
        return false;
    applicationElement->setMessagingTimeout(kMessagingTimeout);
    auto window = elementAttribute("AXFocusedWindow", *applicationElement);
    if (!window)
        window = elementAttribute("AXMainWindow", *applicationElement);
    if (!window || !isText(window->copyAttribute("AXRole"), "AXWindow") ||
        isTrue(window->copyAttribute("AXMinimized")) || hasSheet(*window))
        return false;
    const auto button = elementAttribute("AXCloseButton", *window);
    if (!button || !isTrue(button->copyAttribute("AXEnabled")))
        return false;

    // The user may have switched applications meanwhile.
    if (m_ports.workspace.frontmostApplication() != application)
        return false;
    return button->performAction("AXPress");
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

AccessibilityElementHandle WindowCloseExecutor::elementAttribute(std::string_view name, AccessibilityElement& element) {
    auto value = element.copyAttribute(name);
    auto* found = std::get_if<AccessibilityElementHandle>(&value);
    return found ? std::move(*found) : nullptr;
}

bool WindowCloseExecutor::hasSheet(AccessibilityElement& window) {
    const auto children = window.copyAttribute("AXChildren");
    if (std::holds_alternative<AccessibilityFailure>(children))
        return false;
    const auto* list = std::get_if<AccessibilityList>(&children);
    // Cautious: an unknown value could hide a sheet.
    if (!list)
        return true;
    for (const auto& child : list->items)
        if (child && isText(child->copyAttribute("AXRole"), "AXSheet"))
            return true;
    return false;
}

}  // namespace kinesta
