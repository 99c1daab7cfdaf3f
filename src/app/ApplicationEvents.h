#pragma once

#include <functional>
#include <utility>

#include "support/Observers.h"

namespace kinesta {

enum class ApplicationEvent {
    /// Any window of the application is about to close or has been hidden by the system.
    windowWillClose,
    windowDidBecomeKey,
    /// The configuration window was shown, hidden, miniaturized or brought back.
    windowDidChangeVisibility,
    didBecomeActive,
    /// The machine has woken from sleep.
    didWake,
    /// The person has started the application again.
    reopened
};

/// What happens to the application. The platform posts, the controller observes. Main thread only.
class ApplicationEvents {
  public:
    void post(ApplicationEvent event) const {
        m_observers.notify([] { return true; }, event);
    }

    /// Calls `handler` after every later post of `event` until the subscription ends.
    [[nodiscard]] Subscription observe(ApplicationEvent event, std::function<void()> handler) const {
        return m_observers.add([event, handler = std::move(handler)](ApplicationEvent posted) {
            if (posted == event)
                handler();
        });
    }

  private:
    mutable Observers<ApplicationEvent> m_observers;  // const users may observe
};

}  // namespace kinesta
