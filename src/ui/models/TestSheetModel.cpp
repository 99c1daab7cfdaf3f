#include "ui/models/TestSheetModel.h"

#include "rules/GestureDescription.h"
#include "rules/ShellCommandSettings.h"
#include "support/Translation.h"
#include "ui/models/PublishIfChanged.h"
#include "ui/models/RuleWords.h"

namespace kinesta {

using State = TestSheetContent::State;

TestSheetModel::TestSheetModel(const Parts& parts) : m_parts(parts) {
    const auto onChange = [this](const auto&) { refresh(); };
    m_observers.push_back(m_parts.store.rules().observe(onChange));
    m_observers.push_back(m_parts.service.status().observe(onChange));
    m_observers.push_back(m_parts.service.isGestureEnabled().observe(onChange));
    // A detection follows with its gesture.
    m_observers.push_back(m_parts.session.isActive().observe([this](bool) {
        m_gesture.reset();
        refresh();
    }));
    refresh();
}

void TestSheetModel::gestureRecognized(const DetectedGesture& gesture) {
    if (!m_parts.session.lastDetection().value())
        return;
    m_gesture = gesture;
    refresh();
}

void TestSheetModel::refresh() {
    const TrackpadContactProviderStatus& status = m_parts.service.status().value();
    TestSheetContent content;
    if (status != TrackpadContactProviderStatus::listening()) {
        content.state = State::off;
        content.result = translated("Gesture recognition is turned off");
        content.hint = m_parts.service.isGestureEnabled().value()
                           ? translated("Close this window and start gesture recognition in Settings.")
                           : translated("Close this window and turn gesture recognition on in Settings.");
        content.problem = status.message;
        if (m_parts.service.isGestureEnabled().value())
            content.problem += (content.problem.empty() ? "" : " ") +
                               translated("“What works here” on the overview says what is missing and what helps.");
    } else if (m_gesture && m_parts.session.lastDetection().value()) {
        content.state = State::detected;
        describeDetection(content);
    } else {
        content.result = translated("Waiting for a gesture…");
    }
    publishIfChanged(m_content, std::move(content));
}

void TestSheetModel::describeDetection(TestSheetContent& content) const {
    const std::int64_t count = m_parts.session.consecutiveDetectionCount().value();
    content.gesture = m_gesture;
    content.result = *m_parts.session.lastDetection().value();
    content.isContinuous = m_parts.session.isContinuousDetection().value();
    content.repetition = content.isContinuous ? translated("Continuous gesture")
                         : count == 1         ? translated("Detected once")
                                              : translated("%1 times in a row", {std::to_string(count)});
    content.confirmation = translated("Detected successfully. No configured action was run.");
    const std::vector<GestureRule>& rules = m_parts.store.rules().value();
    const ShellCommands shellCommands =
        ShellCommandSettings::isEnabled(m_parts.defaults) ? ShellCommands::allowed : ShellCommands::forbidden;
    if (const GestureRule* rule = selectRule(rules, *m_gesture, shellCommands)) {
        content.consequence = displayName(*rule);
        content.action = rule->action.kind;
    } else if (ruleForGesture(rules, *m_gesture) != nullptr) {
        content.consequence = capitalized(whyNoRule(rules, *m_gesture));
    } else {
        content.consequence = translated("No rule uses it");
    }
}

}  // namespace kinesta
