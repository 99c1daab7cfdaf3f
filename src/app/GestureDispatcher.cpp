#include "app/GestureDispatcher.h"

#include <utility>

#include "rules/ShellCommandSettings.h"

namespace kinesta {

void GestureDispatcher::bind(MultitouchService& service) {
    service.onEveryGesture([this](const DetectedGesture& gesture) { dispatch(gesture); });
}

void GestureDispatcher::dispatch(const DetectedGesture& gesture) {
    const ShellCommands shellCommands =
        ShellCommandSettings::isEnabled(m_defaults) ? ShellCommands::allowed : ShellCommands::forbidden;
    const GestureRule* rule = selectRule(m_store.rules().value(), gesture, shellCommands);
    if (m_observer)
        m_observer(gesture, rule);
    if (rule == nullptr)
        return;
    const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture);
    // A copy: the action may change the list that holds the rule.
    perform(GestureRule(*rule), slide ? slide->steps : 0);
}

void GestureDispatcher::perform(const GestureRule& rule, std::int64_t steps) {
    m_executor.execute(rule.action, steps, rule.shouldShowActionCue(), rule.resolvedVisualCueMessage());
}

}  // namespace kinesta
