#pragma once

#include <string_view>

#include "actions/ApplicationNotifications.h"
#include "support/Observers.h"

namespace kinesta {

/// Notifications without system services. Observers may post, subscribe and unsubscribe while they are called. An
/// observer added during a post receives later posts only.
class InProcessNotifications final : public ApplicationNotifications {
  public:
    void post(std::string_view name, ActionKind object) override;
    [[nodiscard]] Subscription observe(std::string_view name, Observer observer) override;

  private:
    Observers<std::string_view, ActionKind> m_observers;
};

}  // namespace kinesta
