#include "ui/models/RuleListModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "rules/GestureConflictChecker.h"
#include "support/Translation.h"
#include "ui/models/PublishIfChanged.h"

namespace kinesta {

RuleListModel::RuleListModel(RuleStore& store, RuleHistory& history)
    : m_store(store), m_history(history), m_observer(store.rules().observe([this](const auto&) { follow(); })) {
    follow();
}

const GestureRule* RuleListModel::rule(const Uuid& id) const {
    const auto place = placeOf(id);
    return place ? &rules()[*place] : nullptr;
}

const GestureRule* RuleListModel::selectedRule() const {
    return m_selection.value().kind == WindowSelection::Kind::rule ? rule(m_selection.value().ruleId) : nullptr;
}

void RuleListModel::select(const WindowSelection& selection) {
    if (selection.kind == WindowSelection::Kind::rule) {
        selectRules({selection.ruleId}, selection.ruleId);
        return;
    }
    publishIfChanged(m_marked, {});
    publishIfChanged(m_selection, selection);
    updateCommands();
}

void RuleListModel::selectRules(std::set<Uuid> marked, const Uuid& current) {
    if (!placeOf(current))
        return;
    marked.insert(current);
    publishIfChanged(m_marked, std::move(marked));
    publishIfChanged(m_selection, WindowSelection::rule(current));
    updateCommands();
}

void RuleListModel::setFilter(std::string filter) {
    if (!m_commands.value().isFilterOffered)
        return;
    publishIfChanged(m_filter, std::move(filter));
    updateRows();
    updateCommands();
}

bool RuleListModel::addRule() {
    if (!m_commands.value().canAddNewGesture)
        return false;
    setFilter({});  // it would hide the new rule
    select(WindowSelection::rule(m_store.addRule()));
    return true;
}

void RuleListModel::duplicateRule(const Uuid& id) {
    const auto place = placeOf(id);
    if (!place)
        return;
    std::vector<GestureRule> changed = rules();
    GestureRule copy = changed[*place];
    const Uuid copyId = copy.id = Uuid::random();
    copy.isEnabled = false;
    changed.insert(std::next(changed.begin(), static_cast<std::ptrdiff_t>(*place) + 1), std::move(copy));
    m_store.setRules(std::move(changed));
    select(WindowSelection::rule(copyId));
}

void RuleListModel::deleteSelectedRule() {
    if (selectedRule() != nullptr)
        m_pendingDeletion.set(GestureDeletionRequest::of(rules(), m_marked.value()));
}

void RuleListModel::confirmDeletion(const GestureDeletionRequest& request) {
    const std::set<Uuid> ids(request.ids.begin(), request.ids.end());
    cancelDeletion();
    // Before the rules go: the selection never names a rule that does not exist.
    if (ids.contains(m_selection.value().ruleId))
        select(selectionWithout(ids));
    m_store.deleteRules(ids);
}

bool RuleListModel::canMoveUp(const Uuid& id) const {
    return m_commands.value().canReorder && placeOf(id).value_or(0) > 0;
}

bool RuleListModel::canMoveDown(const Uuid& id) const {
    const auto place = placeOf(id);
    return m_commands.value().canReorder && place && *place + 1 < rules().size();
}

void RuleListModel::moveUp(const Uuid& id) {
    if (const auto place = placeOf(id); place && canMoveUp(id))
        move({id}, *place - 1);
}

void RuleListModel::moveDown(const Uuid& id) {
    if (const auto place = placeOf(id); place && canMoveDown(id))
        move({id}, *place + 2);
}

void RuleListModel::moveMarkedUp() {
    if (const auto place = placeAboveMarked())
        move(m_marked.value(), *place);
}

void RuleListModel::moveMarkedDown() {
    if (const auto place = placeBelowMarked())
        move(m_marked.value(), *place);
}

std::optional<std::size_t> RuleListModel::placeAboveMarked() const {
    const std::set<std::size_t> places = placesOf(m_marked.value());
    if (!m_commands.value().canReorder || places.empty() || *places.begin() == 0)
        return std::nullopt;
    return *places.begin() - 1;
}

std::optional<std::size_t> RuleListModel::placeBelowMarked() const {
    const std::set<std::size_t> places = placesOf(m_marked.value());
    if (!m_commands.value().canReorder || places.empty() || *places.rbegin() + 1 == rules().size())
        return std::nullopt;
    return *places.rbegin() + 2;
}

void RuleListModel::move(const std::set<Uuid>& ids, std::size_t place) {
    if (!m_commands.value().canReorder)
        return;
    const std::set<std::size_t> offsets = placesOf(ids);
    // Dropped where it was: nothing to save.
    if (offsets.empty() || (*offsets.rbegin() - *offsets.begin() + 1 == offsets.size() && place >= *offsets.begin() &&
                            place <= *offsets.rbegin() + 1))
        return;
    m_history.record([&] { m_store.moveRules(offsets, place); });
}

RuleEnablementResult RuleListModel::setEnabled(const Uuid& id, bool enabled) {
    RuleEnablementResult result = RuleEnablementResult::unchanged;
    m_history.record([&] { result = m_store.setRuleEnabled(id, enabled); });
    return result;
}

std::set<Uuid> RuleListModel::setEnabled(const std::set<Uuid>& ids, bool enabled) {
    std::set<Uuid> refused;
    std::vector<GestureRule> changed = rules();
    for (GestureRule& rule : changed)
        if (ids.contains(rule.id)) {
            if (enabled && !rule.isReady())
                refused.insert(rule.id);
            else
                rule.isEnabled = enabled;
        }
    if (changed != rules())
        m_history.record([&] { m_store.setRules(std::move(changed)); });
    return refused;
}

void RuleListModel::enableAll() {
    m_history.record([this] { m_store.enableAllRules(); });
}

void RuleListModel::disableAll() {
    m_history.record([this] { m_store.disableAllRules(); });
}

std::optional<std::size_t> RuleListModel::placeOf(const Uuid& id) const {
    const auto found = std::ranges::find(rules(), id, &GestureRule::id);
    if (found == rules().end())
        return std::nullopt;
    return static_cast<std::size_t>(std::distance(rules().begin(), found));
}

std::set<std::size_t> RuleListModel::placesOf(const std::set<Uuid>& ids) const {
    std::set<std::size_t> places;
    for (std::size_t i = 0; i < rules().size(); ++i)
        if (ids.contains(rules()[i].id))
            places.insert(i);
    return places;
}

WindowSelection RuleListModel::selectionWithout(const std::set<Uuid>& ids) const {
    const auto& shown = m_rows.value();
    const auto stays = [&](const RuleRow& row) { return !ids.contains(row.id); };
    const auto selected = std::ranges::find(shown, m_selection.value().ruleId, &RuleRow::id);
    if (const auto next = std::find_if(selected, shown.end(), stays); next != shown.end())
        return WindowSelection::rule(next->id);
    const auto previous = std::find_if(std::make_reverse_iterator(selected), shown.rend(), stays);
    return previous == shown.rend() ? WindowSelection::overview() : WindowSelection::rule(previous->id);
}

void RuleListModel::follow() {
    m_conflicts = GestureConflictChecker::conflictingRuleIDs(rules());
    if (m_selection.value().kind == WindowSelection::Kind::rule && selectedRule() == nullptr)
        select(WindowSelection::overview());
    std::set<Uuid> present;
    for (const GestureRule& rule : rules())
        if (m_marked.value().contains(rule.id))
            present.insert(rule.id);
    publishIfChanged(m_marked, std::move(present));
    if (const auto& pending = m_pendingDeletion.value()) {
        auto request = GestureDeletionRequest::of(rules(), {pending->ids.begin(), pending->ids.end()});
        publishIfChanged(m_pendingDeletion, request.ids.empty() ? std::nullopt : std::optional(std::move(request)));
    }
    if (rules().size() <= rulesWithoutFilter)
        publishIfChanged(m_filter, {});
    updateRows();
    updateCommands();
}

void RuleListModel::updateRows() { publishIfChanged(m_rows, ruleRows(rules(), m_conflicts, m_filter.value())); }

void RuleListModel::updateCommands() {
    RuleListCommands commands;
    commands.addGestureHelp = translated("Add a new gesture rule");
    if (const GestureRule* selected = selectedRule(); selected != nullptr && !selected->isReady()) {
        commands.canAddNewGesture = false;
        commands.addGestureHelp = translated("Complete the current gesture and action before adding another rule.");
    } else if (selected != nullptr && m_conflicts.contains(selected->id)) {
        commands.canAddNewGesture = false;
        commands.addGestureHelp = translated("Resolve the current gesture clash before adding another rule.");
    }
    commands.canEnableAll = m_store.canEnableAllRules();
    commands.canDisableAll = std::ranges::any_of(rules(), &GestureRule::isEnabled);
    commands.isFilterOffered = rules().size() > rulesWithoutFilter;
    commands.canReorder = m_filter.value().empty();
    publishIfChanged(m_commands, std::move(commands));
}

}  // namespace kinesta
