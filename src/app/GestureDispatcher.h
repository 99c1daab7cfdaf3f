#pragma once

#include <functional>

#include "actions/ActionExecutor.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Runs the action of the first rule that matches a gesture. Main thread only. All arguments must outlive it.
class GestureDispatcher {
  public:
    /// Called for every gesture with its rule or null, before the rule's action runs.
    using Observer = std::function<void(const DetectedGesture&, const GestureRule*)>;

    GestureDispatcher(const RuleStore& store, const UserDefaults& defaults, ActionExecutor& executor)
        : m_store(store), m_defaults(defaults), m_executor(executor) {}

    /// Sets the service's gesture callbacks. They must not be called after the dispatcher is destroyed.
    void bind(MultitouchService& service);

    void setObserver(Observer observer) { m_observer = std::move(observer); }

    void dispatch(const DetectedGesture& gesture);

  private:
    const RuleStore& m_store;
    const UserDefaults& m_defaults;
    ActionExecutor& m_executor;
    Observer m_observer;
};

}  // namespace kinesta
