#pragma once

#include <string_view>

#include "actions/ApplicationNotifications.h"
#include "support/Observers.h"

namespace kinesta {

/// Notifications that need nothing of the system. Observers may post, subscribe and unsubscribe from within their
/// call; one who comes during a post hears only of later ones.
class InProcessNotifications final : public ApplicationNotifications {
  public:
    void post(std::string_view name, ActionKind object) override;
    [[nodiscard]] Subscription observe(std::string_view name, Observer observer) override;

  private:
    Observers<std::string_view, ActionKind> m_observers;
};

}  // namespace kinesta
