#pragma once

#include <memory>
#include <string>
#include <vector>

#include "actions/ApplicationNotifications.h"

namespace kinesta {

/// Notifications without system services. Observers may post, subscribe and unsubscribe while they are called. An
/// observer added during a post receives later posts only.
class InProcessNotifications final : public ApplicationNotifications {
  public:
    void post(std::string_view name, ActionKind object) override;
    [[nodiscard]] Subscription observe(std::string_view name, Observer observer) override;

  private:
    struct Entry {
        std::string name;
        std::shared_ptr<bool> isActive;
        Observer observer;
    };

    std::vector<std::shared_ptr<Entry>> m_entries;
};

}  // namespace kinesta
