#include "app/RuleHistory.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace kinesta {
namespace {

/// Fields of a rule that are only undone together.
struct Part {
    bool (*isSame)(const GestureRule& a, const GestureRule& b);
    void (*copy)(const GestureRule& from, GestureRule& to);
};

template <auto... Fields>
constexpr Part partOf() {
    return {[](const GestureRule& a, const GestureRule& b) { return ((a.*Fields == b.*Fields) && ...); },
            [](const GestureRule& from, GestureRule& to) { ((to.*Fields = from.*Fields), ...); }};
}

// Gesture and action are one part, because the gesture decides which actions there are.
constexpr std::array<Part, 4> kParts{
    partOf<&GestureRule::name>(),
    partOf<&GestureRule::isEnabled>(),
    partOf<&GestureRule::showsActionCue>(),
    partOf<&GestureRule::gesture, &GestureRule::fingerCount, &GestureRule::edgeSlideSide, &GestureRule::anchorCorner,
           &GestureRule::drawPattern, &GestureRule::action>(),
};

std::set<Uuid> idsOf(const std::vector<GestureRule>& rules) {
    std::set<Uuid> ids;
    for (const GestureRule& rule : rules)
        ids.insert(rule.id);
    return ids;
}

std::vector<Uuid> idsAmong(const std::vector<GestureRule>& rules, const std::set<Uuid>& wanted) {
    std::vector<Uuid> ids;
    for (const GestureRule& rule : rules)
        if (wanted.contains(rule.id))
            ids.push_back(rule.id);
    return ids;
}

/// Puts the rules named in `order` into this order, in the places that they have together.
void reorder(std::vector<GestureRule>& rules, const std::vector<Uuid>& order) {
    const std::set<Uuid> ordered(order.begin(), order.end());
    std::map<Uuid, GestureRule> moved;
    for (const GestureRule& rule : rules)
        if (ordered.contains(rule.id))
            moved.emplace(rule.id, rule);
    auto next = order.begin();
    for (GestureRule& rule : rules) {
        if (!ordered.contains(rule.id))
            continue;
        next = std::find_if(next, order.end(), [&](const Uuid& id) { return moved.contains(id); });
        if (next == order.end())
            return;
        rule = moved.at(*next++);
    }
}

}  // namespace

RuleHistory::RuleHistory(RuleStore& store, const Clock& clock)
    : m_store(store),
      m_clock(clock),
      m_known(store.rules().value()),
      m_observer(store.rules().observe([this](const Rules& rules) { follow(rules); })) {}

void RuleHistory::record(const std::function<void()>& change) {
    endTyping();
    keep(changeOf(change));
}

void RuleHistory::record(const std::function<void()>& change, const Uuid& rule, TypedField field) {
    const Uptime now = m_clock.uptime();
    const bool goesOn =
        m_typing && m_typing->rule == rule && m_typing->field == field && now - m_typing->at < typingPause;
    Step step = changeOf(change);
    if (step.isEmpty())
        return;
    m_typing = Typing{rule, field, now};
    if (goesOn && !m_done.empty() && m_done.back().isSingleEdit() && step.isSingleEdit())
        m_done.back().edits.front().after = std::move(step.edits.front().after);
    else
        keep(std::move(step));
    dropWhatCancelsOut();
    publish();
}

void RuleHistory::recordReplacement(const std::function<void()>& change) {
    endTyping();
    Rules before = m_known;
    changeOf(change);
    if (before == m_known)
        return;
    Step step;
    step.lists.emplace(std::move(before), m_known);
    keep(std::move(step));
}

void RuleHistory::recordOther(std::function<void()> back, std::function<void()> forth) {
    endTyping();
    Step step;
    step.back = std::move(back);
    step.forth = std::move(forth);
    keep(std::move(step));
}

RuleHistory::Moved RuleHistory::undo() { return move(m_done, m_undone, Direction::back); }

RuleHistory::Moved RuleHistory::redo() { return move(m_undone, m_done, Direction::forth); }

/// A field has an undo of its own, which arrives as typing: it takes back what was typed, so nothing is left to undo.
void RuleHistory::dropWhatCancelsOut() {
    if (m_done.empty() || !m_done.back().isSingleEdit())
        return;
    // It may take back at once what was typed in several steps.
    const GestureRule now = m_done.back().edits.front().after;
    for (auto step = m_done.end(); step != m_done.begin() && std::prev(step)->isSingleEdit();) {
        --step;
        if (step->edits.front().after.id != now.id)
            return;
        if (step->edits.front().before == now) {
            m_done.erase(step, m_done.end());
            endTyping();
            return;
        }
    }
}

RuleHistory::Step RuleHistory::difference(const Rules& before, const Rules& after) {
    // What a keystroke does, with a thousand rules too: without maps.
    if (std::ranges::equal(before, after, {}, &GestureRule::id, &GestureRule::id)) {
        Step step;
        for (std::size_t i = 0; i < after.size(); ++i)
            if (before[i] != after[i] && std::ranges::find(after, after[i].id, &GestureRule::id) ==
                                             after.begin() + static_cast<std::ptrdiff_t>(i))
                step.edits.push_back({before[i], after[i]});
        return step;
    }
    std::map<Uuid, const GestureRule*> previous;
    for (const GestureRule& rule : before)
        previous.emplace(rule.id, &rule);
    Step step;
    std::set<Uuid> common;
    for (const GestureRule& rule : after) {
        const auto found = previous.find(rule.id);
        if (found == previous.end() || !common.insert(rule.id).second)
            continue;
        if (*found->second != rule)
            step.edits.push_back({*found->second, rule});
    }
    step.orderBefore = idsAmong(before, common);
    step.orderAfter = idsAmong(after, common);
    if (step.orderBefore == step.orderAfter) {
        step.orderBefore.clear();
        step.orderAfter.clear();
    }
    return step;
}

RuleHistory::Step RuleHistory::changeOf(const std::function<void()>& change) {
    m_beforeOwnChange.reset();
    m_isOwnChange = true;
    change();
    m_isOwnChange = false;
    return m_beforeOwnChange ? difference(*std::exchange(m_beforeOwnChange, {}), m_known) : Step();
}

void RuleHistory::keep(Step step) {
    if (step.isEmpty())
        return;
    m_undone.clear();
    m_done.push_back(std::move(step));
    if (m_done.size() > maximumSteps)
        m_done.erase(m_done.begin());
    publish();
}

void RuleHistory::follow(const Rules& rules) {
    Rules before = std::exchange(m_known, rules);
    if (m_isOwnChange) {
        if (!m_beforeOwnChange)
            m_beforeOwnChange = std::move(before);
        return;
    }
    endTyping();
    if (before != rules)
        for (auto* steps : {&m_done, &m_undone})
            std::erase_if(*steps, [](const Step& step) { return step.lists.has_value(); });
    const Step change = difference(before, rules);
    clearMeaningless(m_done, change, rules);
    clearMeaningless(m_undone, change, rules);
    publish();
}

void RuleHistory::clearMeaningless(std::vector<Step>& steps, const Step& change, const Rules& rules) {
    const std::set<Uuid> present = idsOf(rules);
    const auto isGone = [&](const Uuid& id) { return !present.contains(id); };
    std::map<Uuid, const Edit*> changed;
    for (const Edit& edit : change.edits)
        changed.emplace(edit.after.id, &edit);
    for (Step& step : steps) {
        for (Edit& edit : step.edits)
            if (const auto found = changed.find(edit.after.id); found != changed.end())
                for (const Part& part : kParts)
                    if (!part.isSame(found->second->before, found->second->after))
                        part.copy(edit.before, edit.after);
        std::erase_if(step.edits, [&](const Edit& edit) { return isGone(edit.after.id) || edit.before == edit.after; });
        std::erase_if(step.orderBefore, isGone);
        std::erase_if(step.orderAfter, isGone);
        if (!change.orderBefore.empty() || step.orderBefore == step.orderAfter) {
            step.orderBefore.clear();
            step.orderAfter.clear();
        }
    }
    std::erase_if(steps, [](const Step& step) { return step.isEmpty(); });
}

RuleHistory::Moved RuleHistory::move(std::vector<Step>& from, std::vector<Step>& to, Direction direction) {
    if (from.empty())
        return {};
    endTyping();
    to.push_back(std::move(from.back()));
    from.pop_back();
    const Step step = to.back();  // what is called may change the list of steps
    apply(step, direction == Direction::back);
    publish();
    Moved moved;
    if (!step.edits.empty())
        moved.rule = step.edits.front().after.id;
    moved.kind = step.back                  ? Moved::Kind::other
                 : step.lists               ? Moved::Kind::replacement
                 : step.orderBefore.empty() ? Moved::Kind::edit
                                            : Moved::Kind::order;
    return moved;
}

void RuleHistory::apply(const Step& step, bool isBack) {
    if (step.back) {
        isBack ? step.back() : step.forth();
        return;
    }
    Rules rules = m_known;
    if (step.lists)
        rules = isBack ? step.lists->first : step.lists->second;
    for (const Edit& edit : step.edits) {
        const auto rule = std::ranges::find(rules, edit.after.id, &GestureRule::id);
        for (const Part& part : kParts)
            if (rule != rules.end() && !part.isSame(edit.before, edit.after))
                part.copy(isBack ? edit.before : edit.after, *rule);
    }
    if (!step.orderBefore.empty())
        reorder(rules, isBack ? step.orderBefore : step.orderAfter);
    changeOf([&] { m_store.setRules(std::move(rules)); });
}

void RuleHistory::publish() {
    const Possibilities now{!m_done.empty(), !m_undone.empty()};
    if (now != m_possibilities.value())
        m_possibilities.set(now);
}

}  // namespace kinesta
