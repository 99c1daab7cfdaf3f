#include "rules/RuleStore.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "rules/GestureRuleCoding.h"

namespace kinesta {
namespace {

template <typename Rules>
auto find(Rules& rules, const Uuid& id) {
    return std::find_if(rules.begin(), rules.end(), [&](const GestureRule& rule) { return rule.id == id; });
}

bool canBeEnabled(const GestureRule& rule) { return !rule.isEnabled && rule.isReady(); }

void disableUnlessReady(GestureRule& rule) { rule.isEnabled = rule.isEnabled && rule.isReady(); }

}  // namespace

GestureRule RuleStore::Binding::get() const {
    const auto& rules = m_store->m_rules.value();
    const auto rule = find(rules, m_id);
    return rule == rules.end() ? GestureRule::recommendedDefault() : *rule;
}

void RuleStore::Binding::set(GestureRule rule) const {
    auto rules = m_store->m_rules.value();
    const auto place = find(rules, m_id);
    if (place == rules.end())
        return;
    disableUnlessReady(rule);
    *place = std::move(rule);
    m_store->change(std::move(rules));
}

RuleStore::RuleStore(UserDefaults& defaults) : m_defaults(defaults), m_rules({GestureRule::recommendedDefault()}) {
    reload();
}

Uuid RuleStore::addRule() {
    auto rules = m_rules.value();
    const Uuid id = Uuid::random();
    rules.emplace_back().id = id;
    change(std::move(rules));
    return id;
}

void RuleStore::deleteRules(const std::set<Uuid>& ids) {
    auto rules = m_rules.value();
    if (std::erase_if(rules, [&](const GestureRule& rule) { return ids.contains(rule.id); }) > 0)
        change(std::move(rules));
}

void RuleStore::moveRules(const std::set<std::size_t>& fromOffsets, std::size_t toOffset) {
    const auto& rules = m_rules.value();
    std::vector<GestureRule> before;
    std::vector<GestureRule> moved;
    std::vector<GestureRule> after;
    for (std::size_t i = 0; i < rules.size(); ++i)
        (fromOffsets.contains(i) ? moved : i < toOffset ? before : after).push_back(rules[i]);
    if (moved.empty())
        return;
    std::move(moved.begin(), moved.end(), std::back_inserter(before));
    std::move(after.begin(), after.end(), std::back_inserter(before));
    change(std::move(before));
}

RuleEnablementResult RuleStore::setRuleEnabled(const Uuid& id, bool enabled) {
    auto rules = m_rules.value();
    const auto rule = find(rules, id);
    if (rule == rules.end() || rule->isEnabled == enabled)
        return RuleEnablementResult::unchanged;
    if (enabled && !rule->isReady())
        return RuleEnablementResult::ruleNotReady;
    rule->isEnabled = enabled;
    change(std::move(rules));
    return RuleEnablementResult::changed;
}

bool RuleStore::canEnableAllRules() const {
    const auto& rules = m_rules.value();
    return std::any_of(rules.begin(), rules.end(), canBeEnabled);
}

RuleEnablementResult RuleStore::enableAllRules() {
    if (!canEnableAllRules())
        return RuleEnablementResult::unchanged;
    auto rules = m_rules.value();
    for (GestureRule& rule : rules)
        if (canBeEnabled(rule))
            rule.isEnabled = true;
    change(std::move(rules));
    return RuleEnablementResult::changed;
}

void RuleStore::disableAllRules() {
    auto rules = m_rules.value();
    if (std::none_of(rules.begin(), rules.end(), [](const GestureRule& rule) { return rule.isEnabled; }))
        return;
    for (GestureRule& rule : rules)
        rule.isEnabled = false;
    change(std::move(rules));
}

void RuleStore::setRules(std::vector<GestureRule> rules) {
    // This also disables unacknowledged shell commands, which are never ready.
    for (GestureRule& rule : rules)
        disableUnlessReady(rule);
    change(std::move(rules));
}

void RuleStore::replaceRules(std::vector<GestureRule> rules) {
    m_problem.clear();
    setRules(std::move(rules));
}

std::optional<RuleStore::Binding> RuleStore::binding(const Uuid& id) {
    if (find(m_rules.value(), id) == m_rules.value().end())
        return std::nullopt;
    return Binding(*this, id);
}

void RuleStore::reload() {
    // Written by hand, it may be text or plain JSON.
    const std::optional<std::string> stored = m_defaults.anyAsText(storageKey);
    m_problem.clear();
    if (!stored) {
        publishIfChanged({GestureRule::recommendedDefault()});
        return;
    }
    const auto decoded = decodeRules(*stored);
    // A list that does not decode stays stored until the next change, so that the user can still repair it.
    if (!decoded) {
        m_problem = decoded.error().message;
        return;
    }
    auto rules = disablingUnacknowledgedShellRules(*decoded);
    const bool isSwitchedOff = rules != *decoded;
    publishIfChanged(std::move(rules));
    if (isSwitchedOff)
        save();
}

std::vector<GestureRule> RuleStore::disablingUnacknowledgedShellRules(std::vector<GestureRule> rules) {
    for (GestureRule& rule : rules)
        if (rule.action.kind == ActionKind::shellCommand && !rule.action.isShellCommandAcknowledged())
            rule.isEnabled = false;
    return rules;
}

void RuleStore::save() {
    if (!m_problem.empty())
        setUnreadableAside();
    m_defaults.setData(storageKey, encodeRules(m_rules.value()));
}

void RuleStore::setUnreadableAside() {
    m_problem.clear();
    const auto stored = m_defaults.anyAsText(storageKey);
    if (!stored)
        return;
    std::string key;
    for (int number = 1; key.empty() || m_defaults.contains(key); ++number)
        key = std::string(setAsideKey) + std::to_string(number);
    m_defaults.setData(key, *stored);
}

void RuleStore::publishIfChanged(std::vector<GestureRule> rules) {
    if (rules != m_rules.value())
        m_rules.set(std::move(rules));
}

void RuleStore::change(std::vector<GestureRule> rules) {
    m_rules.set(std::move(rules));
    save();
}

}  // namespace kinesta
