#pragma once

#include <functional>
#include <string_view>

#include "rules/ActionKind.h"
#include "support/Subscription.h"

namespace kinesta {

/// Asks the application for something that only it can do. The object is the kind of the action that asks.
inline constexpr std::string_view kAppActionRequested = "com.orvane.kinesta.appActionRequested";

/// The port to the notifications within this process. Main thread only.
class ApplicationNotifications {
  public:
    using Observer = std::function<void(ActionKind)>;

    virtual ~ApplicationNotifications() = default;

    /// Tells everyone who observes `name`, in the order in which they came, before returning. Nobody need be there.
    virtual void post(std::string_view name, ActionKind object) = 0;

    /// Calls `observer` at every later post of `name`, until the subscription ends.
    [[nodiscard]] virtual Subscription observe(std::string_view name, Observer observer) = 0;
};

}  // namespace kinesta
