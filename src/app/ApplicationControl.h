#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/ApplicationState.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// What other processes see of the running application, and can make it do. Main thread only.
class ApplicationControl {
  public:
    /// The parts of the application that this reads and moves. The referents must outlive it.
    struct Parts {
        RuleStore& store;
        MultitouchService& service;
        std::function<std::string()> statusText;
        std::function<bool()> isWindowVisible;
        std::function<bool()> isTestActive;
        std::function<TrayKind()> tray;

        std::function<void()> show;
        std::function<void()> hide;
        std::function<void()> toggle;
        std::function<void()> reload;
        std::function<void()> quit;
    };

    explicit ApplicationControl(Parts parts);

    /// Set only when something has changed.
    const Published<ApplicationState>& state() const { return m_state; }

    void perform(ApplicationRequest request);

    /// Reads the state again. To be called when the window, the test session or the tray has changed; store and service
    /// are observed.
    void refresh();

  private:
    ApplicationState read() const;

    Parts m_parts;
    Published<ApplicationState> m_state;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
