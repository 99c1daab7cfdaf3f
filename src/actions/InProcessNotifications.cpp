#include "actions/InProcessNotifications.h"

#include <utility>

namespace kinesta {

void InProcessNotifications::post(std::string_view name, ActionKind object) {
    std::erase_if(m_entries, [](const auto& entry) { return !*entry->isActive; });
    // A copy: a call may subscribe or post, both of which change the list.
    const auto present = m_entries;
    for (const auto& entry : present)
        if (*entry->isActive && entry->name == name)
            entry->observer(object);
}

Subscription InProcessNotifications::observe(std::string_view name, Observer observer) {
    auto isActive = std::make_shared<bool>(true);
    m_entries.push_back(std::make_shared<Entry>(Entry{std::string(name), isActive, std::move(observer)}));
    return Subscription(std::move(isActive));
}

}  // namespace kinesta
