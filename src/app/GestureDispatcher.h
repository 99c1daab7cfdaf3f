#pragma once

#include <functional>

#include "actions/ActionExecutor.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Where a finished gesture goes: the first rule that takes it, and that rule's action. Main thread only; everything
/// that it was given must outlive it.
class GestureDispatcher {
  public:
    /// Is told of every gesture, with the rule that takes it or null, before the rule's action runs.
    using Observer = std::function<void(const DetectedGesture&, const GestureRule*)>;

    GestureDispatcher(const RuleStore& store, const UserDefaults& defaults, ActionExecutor& executor)
        : m_store(store), m_defaults(defaults), m_executor(executor) {}

    /// Takes over the service's gesture callbacks, which must not be called once the dispatcher is gone.
    void bind(MultitouchService& service);

    void setObserver(Observer observer) { m_observer = std::move(observer); }

    void dispatch(const DetectedGesture& gesture);

    /// Runs a rule's action as if `steps` steps of a slide had asked for it (0 for every other gesture).
    void perform(const GestureRule& rule, std::int64_t steps);

  private:
    const RuleStore& m_store;
    const UserDefaults& m_defaults;
    ActionExecutor& m_executor;
    Observer m_observer;
};

}  // namespace kinesta
