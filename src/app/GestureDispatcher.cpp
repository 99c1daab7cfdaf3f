#include "app/GestureDispatcher.h"

#include "app/RulePerformer.h"
#include "rules/ShellCommandSettings.h"

namespace kinesta {

void GestureDispatcher::bind(MultitouchService& service) {
    service.onEveryGesture([this](const DetectedGesture& gesture) { dispatch(gesture); });
}

void GestureDispatcher::dispatch(const DetectedGesture& gesture) {
    const ShellCommands shellCommands =
        ShellCommandSettings::isEnabled(m_defaults) ? ShellCommands::allowed : ShellCommands::forbidden;
    const GestureRule* rule =
        m_testSession.intercept(gesture) ? nullptr : selectRule(m_store.rules().value(), gesture, shellCommands);
    if (m_observer)
        m_observer(gesture, rule);
    if (rule == nullptr)
        return;
    // A copy: the action may change the list that holds the rule.
    performRule(m_executor, GestureRule(*rule), adjustmentSteps(gesture));
}

}  // namespace kinesta
