#include "actions/WindowTilingExecutor.h"

#include <algorithm>
#include <string>
#include <utility>

namespace kinesta {

bool WindowTilingExecutor::execute(WindowTilingMenuCommand command) {
    if (m_ports.systemVersion.majorVersion() < kMinimumSystemVersion)
        return false;
    const auto application = m_ports.workspace.frontmostApplication();
    if (!application)
        return false;
    if (*application == m_ports.workspace.ownProcessIdentifier())
        return executeLocalMenuCommand(command);
    if (!m_ports.permission.isTrusted())
        return false;

    const Uptime deadline = m_ports.clock.uptime() + kSearchBudget;
    const auto applicationElement = m_ports.accessibility.applicationElement(*application);
    if (!applicationElement)
        return false;
    auto menuBar = attribute("AXMenuBar", *applicationElement, deadline);
    auto* menuBarElement = std::get_if<AccessibilityElementHandle>(&menuBar);
    if (!menuBarElement || !*menuBarElement)
        return false;
    int remainingElements = kElementBudget;
    const auto item = findMenuItem(rawValue(command), std::move(*menuBarElement), 0, remainingElements, deadline);
    if (!item)
        return false;
    const auto enabled = attribute("AXEnabled", *item, deadline);
    const bool* isEnabled = std::get_if<bool>(&enabled);
    if (!isEnabled || !*isEnabled)
        return false;

    // The user may have switched applications meanwhile.
    if (m_ports.workspace.frontmostApplication() != application)
        return false;
    return limitRequestTime(*item, deadline) && item->performAction("AXPress");
}

AccessibilityElementHandle WindowTilingExecutor::findMenuItem(std::string_view identifier,
                                                              AccessibilityElementHandle element, int depth,
                                                              int& remainingElements, Uptime deadline) {
    if (depth > kMaximumDepth || remainingElements < 1 || m_ports.clock.uptime() >= deadline)
        return nullptr;
    --remainingElements;
    const auto found = attribute("AXIdentifier", *element, deadline);
    const auto* text = std::get_if<std::string>(&found);
    if (text && *text == identifier)
        return element;

    auto children = attribute("AXChildren", *element, deadline);
    auto* list = std::get_if<AccessibilityList>(&children);
    if (!list)
        return nullptr;
    for (auto& child : list->items) {
        if (!child)
            continue;
        if (auto item = findMenuItem(identifier, std::move(child), depth + 1, remainingElements, deadline))
            return item;
    }
    return nullptr;
}

AccessibilityValue WindowTilingExecutor::attribute(std::string_view name, AccessibilityElement& element,
                                                   Uptime deadline) {
    if (!limitRequestTime(element, deadline))
        return AccessibilityFailure{};
    return element.copyAttribute(name);
}

bool WindowTilingExecutor::limitRequestTime(AccessibilityElement& element, Uptime deadline) {
    const Seconds remaining = deadline - m_ports.clock.uptime();
    return remaining > 0 && element.setMessagingTimeout(std::min(remaining, kRequestTimeout));
}

bool WindowTilingExecutor::executeLocalMenuCommand(WindowTilingMenuCommand command) {
    const auto menu = m_ports.ownMenus.mainMenu();
    if (!menu)
        return false;
    const auto item = localMenuItem(rawValue(command), *menu, 0);
    return item && item->isEnabled() && item->actionName() && item->sendAction();
}

std::unique_ptr<OwnMenuItem> WindowTilingExecutor::localMenuItem(std::string_view identifier, OwnMenu& menu,
                                                                 int depth) {
    if (depth > kMaximumDepth)
        return nullptr;
    // Item states are current only after an update.
    menu.update();
    for (auto& item : menu.items()) {
        if (item->identifier() == identifier || item->actionName() == identifier)
            return std::move(item);
        if (const auto submenu = item->submenu())
            if (auto found = localMenuItem(identifier, *submenu, depth + 1))
                return found;
    }
    return nullptr;
}

}  // namespace kinesta
