#include "ui/models/OverviewModel.h"

#include <algorithm>
#include <utility>

#include "rules/GestureDescription.h"
#include "ui/models/PublishIfChanged.h"
#include "ui/models/RuleWords.h"

namespace kinesta {
namespace {

using State = OverviewContent::State;

std::string headline(State state) {
    switch (state) {
        case State::listening:
            return "Ready for your gestures";
        case State::listeningWithoutRules:
            return "Listening, with no rule on";
        case State::off:
            return "Gestures are off";
        case State::stopped:
            return "The trackpad is not being read";
        case State::unavailable:
            return "The trackpad cannot be read";
        case State::firstLaunch:
            break;
    }
    return "Welcome to Kinesta";
}

}  // namespace

OverviewModel::OverviewModel(Parts parts) : m_parts(std::move(parts)), m_isWelcome(m_parts.isFirstLaunch) {
    const auto onChange = [this](const auto&) { refresh(); };
    m_observers.push_back(m_parts.store.rules().observe(onChange));
    m_observers.push_back(m_parts.service.status().observe(onChange));
    m_observers.push_back(m_parts.service.isGestureEnabled().observe(onChange));
    m_observers.push_back(m_parts.service.gestureCountdown().observe([this](const std::optional<int>& seconds) {
        update([&](OverviewContent& content) {
            if (!seconds)
                content.lastGesture.reset();
            else if (content.lastGesture)
                content.lastGesture->secondsLeft = *seconds;
        });
    }));
    refresh();
}

void OverviewModel::gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule) {
    const std::vector<GestureRule>& rules = m_parts.store.rules().value();
    LastGesture last{.gesture = gesture, .text = "Detected " + describe(gesture), .outcome = {}, .rule = {}};
    last.secondsLeft = m_parts.service.gestureCountdown().value().value_or(0);
    last.hasRun = rule != nullptr;
    if (rule != nullptr)
        last.outcome = "Ran “" + displayName(*rule) + "”";
    else if (m_parts.testSession.isActive().value())
        last.outcome = "Actions are paused while gestures are tried";
    else if ((rule = ruleForGesture(rules, gesture)) != nullptr)
        last.outcome = capitalized(whyNoRule(rules, gesture));
    else
        last.outcome = "No rule uses it";
    if (rule != nullptr)
        last.rule = rule->id;
    update([&](OverviewContent& content) { content.lastGesture = std::move(last); });
}

void OverviewModel::setNotices(std::vector<std::string> notices) {
    update([&](OverviewContent& content) { content.notices = std::move(notices); });
}

void OverviewModel::refresh() {
    m_isWelcome = m_isWelcome && m_parts.store.rules().value().size() < 2;
    update([this](OverviewContent& content) { describeState(content); });
}

void OverviewModel::update(const Change& change) {
    OverviewContent content = m_content.value();
    change(content);
    publishIfChanged(m_content, std::move(content));
}

void OverviewModel::describeState(OverviewContent& content) const {
    using Kind = TrackpadContactProviderStatus::Kind;
    const std::vector<GestureRule>& rules = m_parts.store.rules().value();
    const TrackpadContactProviderStatus& status = m_parts.service.status().value();
    content.isGestureEnabled = m_parts.service.isGestureEnabled().value();
    content.enabledCount = static_cast<std::size_t>(std::ranges::count_if(rules, &GestureRule::isEnabled));
    content.isPermissionMissing = m_parts.isPermissionMissing();
    if (!content.isGestureEnabled) {
        content.state = State::off;
        content.statusLine = "Turn gesture recognition on in Settings to use your rules.";
    } else if (status.kind == Kind::stopped) {
        content.state = State::stopped;
        content.statusLine = "Open Settings to review gesture recognition.";
    } else if (status.kind == Kind::unavailable) {
        content.state = State::unavailable;
        content.statusLine = status.message;
    } else {
        content.state = content.enabledCount == 0 ? State::listeningWithoutRules : State::listening;
        content.statusLine = content.enabledCount == 1
                                 ? "Listening for 1 enabled gesture rule."
                                 : "Listening for " + std::to_string(content.enabledCount) + " enabled gesture rules.";
    }
    if (m_isWelcome)
        content.state = State::firstLaunch;
    content.headline = headline(content.state);
    // A deleted rule cannot be shown.
    if (auto& last = content.lastGesture;
        last && last->rule && std::ranges::find(rules, *last->rule, &GestureRule::id) == rules.end())
        last->rule.reset();
}

}  // namespace kinesta
