#include "ui/models/RuleEditorModel.h"

#include <algorithm>
#include <utility>

#include "feedback/ActionCueContent.h"
#include "rules/GestureConflictChecker.h"
#include "ui/models/PublishIfChanged.h"
#include "ui/models/RuleEditing.h"
#include "ui/models/RuleWords.h"

namespace kinesta {
namespace {

std::string cuePlaceholder(GestureRule rule) {
    rule.action.customCueLabel.reset();
    const std::int64_t steps = rule.action.kind == ActionKind::adjustVolume ? 1 : 0;
    return ActionCueContent::of(rule.action, steps, rule.resolvedVisualCueMessage()).label;
}

}  // namespace

RuleEditorModel::RuleEditorModel(const Parts& parts, const Uuid& id)
    : m_parts(parts), m_id(id), m_observer(parts.store.rules().observe([this](const auto& rules) { follow(rules); })) {
    follow(parts.store.rules().value());
}

RuleEditorModel::~RuleEditorModel() { endSession(); }

void RuleEditorModel::setName(const std::string& name) {
    edit([&](GestureRule& rule) { rule.name = name; }, TypedField::name);
}

RuleEnablementResult RuleEditorModel::setEnabled(bool enabled) {
    RuleEnablementResult result = RuleEnablementResult::unchanged;
    m_parts.history.record([&] { result = m_parts.store.setRuleEnabled(m_id, enabled); });
    return result;
}

void RuleEditorModel::setType(GestureTypeChoice type) {
    edit([&](GestureRule& rule) { changeGesture(rule, gestureKind(type, repetitionCount(rule.gesture).value_or(1))); });
}

void RuleEditorModel::pick(GesturePicker picker, int value) {
    edit([&](GestureRule& rule) { kinesta::pick(rule, picker, value); });
}

void RuleEditorModel::setWaitsForGesture(bool waits) {
    if (waits && m_isGone)
        return;
    m_rest = {};
    if (!waits)
        endSession();
    // A session that somebody else has begun goes on afterwards.
    else if (!m_parts.testSession.isActive().value()) {
        m_hasBegunSession = true;
        m_parts.testSession.begin();
    }
    if (std::exchange(m_waitsForGesture, waits) != waits)
        follow(m_parts.store.rules().value());
}

void RuleEditorModel::gestureRecognized(const DetectedGesture& gesture) {
    if (std::exchange(m_waitsForGesture, false)) {
        edit([&](GestureRule& rule) { takeGesture(rule, gesture); });
        follow(m_parts.store.rules().value());  // nothing was saved if it is the gesture that the rule had
    }
    // The rest of a slide must not run the rule that it has just become the gesture of.
    if (m_hasBegunSession)
        m_rest = m_parts.mainThread.after(wholeNanoseconds(restAfterGesture), [this] { endSession(); });
}

void RuleEditorModel::setActionKind(ActionKind kind) {
    edit([&](GestureRule& rule) {
        const auto allowed = actionKindsFor(rule.gesture);
        if (rule.action.kind == kind || std::ranges::find(allowed, kind) == allowed.end())
            return;
        auto label = std::move(rule.action.customCueLabel);
        rule.action = {};
        rule.action.kind = kind;
        rule.action.customCueLabel = std::move(label);
    });
}

void RuleEditorModel::setActionValue(const std::string& value) {
    edit(
        [&](GestureRule& rule) {
            if (rule.action.value == value)
                return;
            rule.action.value = value;
            rule.action.shellCommandAcknowledged.reset();
        },
        TypedField::value);
}

void RuleEditorModel::setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers) {
    edit([&](GestureRule& rule) {
        rule.action.keyCode = keyCode;
        rule.action.modifiers = keyCode ? modifiers : ShortcutModifiers{};
    });
}

void RuleEditorModel::setArguments(const std::vector<std::string>& arguments) {
    edit(
        [&](GestureRule& rule) {
            rule.action.applicationArguments = arguments.empty() ? std::nullopt : std::optional(arguments);
        },
        TypedField::arguments);
}

void RuleEditorModel::setShellCommandAcknowledged(bool acknowledged) {
    edit([&](GestureRule& rule) { rule.action.shellCommandAcknowledged = acknowledged; });
}

void RuleEditorModel::setShowsCue(bool shows) {
    edit([&](GestureRule& rule) { rule.showsActionCue = shows; });
}

void RuleEditorModel::setCueLabel(const std::string& label) {
    edit([&](GestureRule& rule) { rule.action.customCueLabel = label.empty() ? std::nullopt : std::optional(label); },
         TypedField::cueLabel);
}

void RuleEditorModel::endSession() {
    if (std::exchange(m_hasBegunSession, false))
        m_parts.testSession.end();
}

void RuleEditorModel::edit(const Change& change, std::optional<TypedField> field) {
    const auto binding = m_parts.store.binding(m_id);
    if (!binding)
        return;
    const GestureRule before = binding->get();
    GestureRule rule = before;
    change(rule);
    if (rule == before)
        return;
    // Known before the store publishes, which is when the content is made.
    if (before.isEnabled && !rule.isReady())
        m_wasSwitchedOffByEdit = true;
    if (before.action.isShellCommandAcknowledged() && !rule.action.shellCommandAcknowledged)
        m_mustConfirmAgain = true;
    const auto save = [&] { binding->set(std::move(rule)); };
    if (field)
        m_parts.history.record(save, m_id, *field);
    else
        m_parts.history.record(save);
}

void RuleEditorModel::follow(const std::vector<GestureRule>& rules) {
    if (m_isGone)
        return;
    const auto rule = std::ranges::find(rules, m_id, &GestureRule::id);
    if (rule != rules.end()) {
        publish(rules, *rule);
        return;
    }
    m_isGone = true;
    setWaitsForGesture(false);
    if (onGone)
        onGone();
}

void RuleEditorModel::publish(const std::vector<GestureRule>& rules, const GestureRule& rule) {
    m_wasSwitchedOffByEdit = m_wasSwitchedOffByEdit && !rule.isEnabled;
    m_mustConfirmAgain =
        m_mustConfirmAgain && rule.action.kind == ActionKind::shellCommand && !rule.action.isShellCommandAcknowledged();
    RuleEditorContent content{.rule = rule,
                              .type = gestureTypeChoice(rule.gesture),
                              .actionKinds = actionKindsFor(rule.gesture),
                              .cuePlaceholder = cuePlaceholder(rule),
                              .rivals = {},
                              .systemWarning = SystemGestureWarningChecker::warning(rule, m_parts.system),
                              .missing = whatIsMissing(rule)};
    findRivals(content, rules);
    content.wasSwitchedOffByEdit = m_wasSwitchedOffByEdit;
    content.canTurnOn = m_wasSwitchedOffByEdit && !content.missing;
    content.mustConfirmAgain = m_mustConfirmAgain;
    content.waitsForGesture = m_waitsForGesture;
    publishIfChanged(m_content, std::move(content));
}

void RuleEditorModel::findRivals(RuleEditorContent& content, const std::vector<GestureRule>& rules) const {
    bool hasPassed = false;
    for (const GestureRule& other : rules) {
        hasPassed = hasPassed || other.id == m_id;
        if (other.id == m_id || !GestureConflictChecker::areRivals(content.rule, other))
            continue;
        if (content.rivals.empty())
            content.comesFirst = hasPassed;
        content.rivals.push_back({other.id, displayName(other)});
    }
}

}  // namespace kinesta
