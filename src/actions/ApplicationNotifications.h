#pragma once

#include <functional>
#include <string_view>

#include "rules/ActionKind.h"
#include "support/Subscription.h"

namespace kinesta {

/// Requests an action that only the application can perform. The object is the kind of that action.
inline constexpr std::string_view kAppActionRequested = "com.orvane.kinesta.appActionRequested";

/// The port to notifications within this process. Main thread only.
class ApplicationNotifications {
  public:
    using Observer = std::function<void(ActionKind)>;

    virtual ~ApplicationNotifications() = default;

    /// Calls every observer of `name`, in the order of subscription, before it returns.
    virtual void post(std::string_view name, ActionKind object) = 0;

    /// Calls `observer` for every later post of `name` until the subscription ends.
    [[nodiscard]] virtual Subscription observe(std::string_view name, Observer observer) = 0;
};

}  // namespace kinesta
