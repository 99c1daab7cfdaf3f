#include "ui/models/OverviewModel.h"

#include <algorithm>
#include <utility>

#include "rules/GestureDescription.h"
#include "support/Translation.h"
#include "ui/models/PublishIfChanged.h"
#include "ui/models/RuleWords.h"

namespace kinesta {
namespace {

using State = OverviewContent::State;

std::string headline(State state) {
    switch (state) {
        case State::listening:
            return translated("Ready for your gestures");
        case State::listeningWithoutRules:
            return translated("Listening, with no rule on");
        case State::off:
            return translated("Gestures are off");
        case State::stopped:
            return translated("The trackpad is not being read");
        case State::unavailable:
            return translated("The trackpad cannot be read");
        case State::firstLaunch:
            break;
    }
    return translated("Welcome to Kinesta");
}

std::string invitation(const OverviewContent& content) {
    if (!content.isGestureEnabled)
        return translated("No gesture will be seen until gesture recognition is on: switch it on above.");
    if (!content.isListening)
        return translated("No gesture will be seen while the trackpad is not read. “What works here” says what helps.");
    return translated("Touch the pad with two or more fingers.");
}

std::string welcome(const std::vector<GestureRule>& rules) {
    const GestureRule& recommended = GestureRule::recommendedDefault();
    if (rules.size() == 1 && rules[0].isEnabled && rules[0].gesture == recommended.gesture &&
        rules[0].fingerCount == recommended.fingerCount && rules[0].action.kind == recommended.action.kind)
        return translated(
            "Your first gesture is set up: touch the pad with three fingers together and lift. It does a middle "
            "click.");
    return translated("Fingers on the pad do what you choose: add a gesture, then say what happens.");
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
    LastGesture last{
        .gesture = gesture, .text = translated("Detected %1", {describe(gesture)}), .outcome = {}, .rule = {}};
    last.secondsLeft = m_parts.service.gestureCountdown().value().value_or(0);
    last.hasRun = rule != nullptr;
    if (rule == nullptr)
        rule = ruleForGesture(rules, gesture);
    if (last.hasRun)
        last.outcome = translated("Ran “%1”", {displayName(*rule)});
    else if (m_parts.testSession.isActive().value())
        last.outcome = translated("Actions are paused while gestures are tried");
    else if (rule != nullptr)
        last.outcome = capitalized(whyNoRule(rules, gesture));
    else
        last.outcome = translated("No rule uses it");
    if (rule != nullptr)
        last.rule = rule->id;
    update([&](OverviewContent& content) { content.lastGesture = std::move(last); });
}

void OverviewModel::setNotices(std::vector<OverviewNotice> notices) {
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
    content.isListening = content.isGestureEnabled && status.kind == Kind::listening;
    content.isPermissionMissing = m_parts.isPermissionMissing();
    if (!content.isGestureEnabled) {
        content.state = State::off;
        content.statusLine = translated("Turn gesture recognition on in Settings to use your rules.");
    } else if (status.kind == Kind::stopped) {
        content.state = State::stopped;
        content.statusLine = translated("Open Settings to review gesture recognition.");
    } else if (status.kind == Kind::unavailable) {
        content.state = State::unavailable;
        content.statusLine = status.message;
    } else {
        content.state = content.enabledCount == 0 ? State::listeningWithoutRules : State::listening;
        content.statusLine = content.enabledCount == 1 ? translated("Listening for 1 enabled gesture rule.")
                                                       : translated("Listening for %1 enabled gesture rules.",
                                                                    {std::to_string(content.enabledCount)});
    }
    content.welcome.clear();
    if (m_isWelcome) {
        content.state = State::firstLaunch;
        content.welcome = welcome(rules);
        if (status.kind == Kind::unavailable && content.isGestureEnabled)
            content.statusLine = translated("The touchpad may not be read yet.");
    }
    content.headline = headline(content.state);
    content.invitation = invitation(content);
    // A deleted rule cannot be shown.
    if (auto& last = content.lastGesture;
        last && last->rule && std::ranges::find(rules, *last->rule, &GestureRule::id) == rules.end())
        last->rule.reset();
}

}  // namespace kinesta
