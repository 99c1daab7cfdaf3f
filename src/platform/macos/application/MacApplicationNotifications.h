#pragma once

#include <memory>

#include "actions/ApplicationNotifications.h"

namespace kinesta {

/// Notifications of the process's default center, whose object is the raw value of the action's kind. Main thread only.
class MacApplicationNotifications final : public ApplicationNotifications {
  public:
    MacApplicationNotifications();
    ~MacApplicationNotifications() override;

    void post(std::string_view name, ActionKind object) override;
    [[nodiscard]] Subscription observe(std::string_view name, Observer observer) override;

  private:
    struct Observations;

    std::unique_ptr<Observations> m_observations;
};

}  // namespace kinesta
