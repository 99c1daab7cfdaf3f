#pragma once

#include <functional>

#include "actions/ActionExecutor.h"
#include "feedback/GestureTestSession.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Runs the action of the first rule that matches a gesture, unless the person is only trying gestures. Main thread
/// only. All arguments must outlive it.
class GestureDispatcher {
  public:
    /// Called for every gesture before its action runs, with the rule that runs; null if none does, because none
    /// matches or because the test session has taken the gesture.
    using Observer = std::function<void(const DetectedGesture&, const GestureRule*)>;

    GestureDispatcher(const RuleStore& store, const UserDefaults& defaults, ActionExecutor& executor,
                      GestureTestSession& testSession)
        : m_store(store), m_defaults(defaults), m_executor(executor), m_testSession(testSession) {}

    /// Sets the service's gesture callbacks. They must not be called after the dispatcher is destroyed.
    void bind(MultitouchService& service);

    void setObserver(Observer observer) { m_observer = std::move(observer); }

    void dispatch(const DetectedGesture& gesture);

  private:
    const RuleStore& m_store;
    const UserDefaults& m_defaults;
    ActionExecutor& m_executor;
    GestureTestSession& m_testSession;
    Observer m_observer;
};

}  // namespace kinesta
