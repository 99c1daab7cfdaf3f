#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/RuleHistory.h"
#include "rules/RuleStore.h"
#include "support/Published.h"
#include "ui/models/GestureDeletionRequest.h"
#include "ui/models/RuleRow.h"
#include "ui/models/WindowSelection.h"

namespace kinesta {

/// Which commands of the rule list are possible now.
struct RuleListCommands {
    bool canAddNewGesture = true;
    std::string addGestureHelp;
    bool canEnableAll = false;
    bool canDisableAll = false;
    bool isFilterOffered = false;
    /// Not while a filter hides rules.
    bool canReorder = true;

    friend bool operator==(const RuleListCommands&, const RuleListCommands&) = default;
};

/// The sidebar: the rules, what is selected, and the commands of the list. Publishes only what differs. Main thread
/// only.
///
/// Follows the store when it changes behind the window: if the selected rule is gone, the overview is selected, and not
/// a neighbour, into which the person might go on typing.
class RuleListModel {
  public:
    /// More rules than this offer the filter.
    static constexpr std::size_t rulesWithoutFilter = 8;

    /// Both must outlive this.
    RuleListModel(RuleStore& store, RuleHistory& history);

    const Published<WindowSelection>& selection() const { return m_selection; }
    /// The rules that a deletion takes: none, the selected one, or several with the selected one.
    const Published<std::set<Uuid>>& markedRules() const { return m_marked; }
    const Published<std::vector<RuleRow>>& rows() const { return m_rows; }
    const Published<RuleListCommands>& commands() const { return m_commands; }
    const Published<std::string>& filter() const { return m_filter; }
    /// While present, the window asks whether to delete.
    const Published<std::optional<GestureDeletionRequest>>& pendingDeletion() const { return m_pendingDeletion; }

    /// The rule with this identifier, or null.
    const GestureRule* rule(const Uuid& id) const;
    /// The rule of the selection, or null.
    const GestureRule* selectedRule() const;

    /// Nothing happens for a rule that does not exist.
    void select(const WindowSelection& selection);
    /// Selects one rule and marks it together with others.
    void selectRules(std::set<Uuid> marked, const Uuid& current);
    /// Shows only the matching rules. Has no effect while the filter is not offered, which also clears it.
    void setFilter(std::string filter);

    /// Adds a blank rule at the end and selects it, or returns false.
    bool addRule();
    /// Inserts a copy after the rule, switched off, and selects it.
    void duplicateRule(const Uuid& id);

    /// Asks for the deletion of the marked rules. Nothing is deleted yet.
    void deleteSelectedRule();
    void cancelDeletion() { m_pendingDeletion.set(std::nullopt); }
    /// Deletes the rules. If the selected rule is one of them, selects the row after it that stays, else the one before
    /// it, else the overview.
    void confirmDeletion(const GestureDeletionRequest& request);

    bool canMoveUp(const Uuid& id) const;
    bool canMoveDown(const Uuid& id) const;
    void moveUp(const Uuid& id);
    void moveDown(const Uuid& id);
    /// The same for all marked rules, which stand together afterwards.
    bool canMoveMarkedUp() const { return placeAboveMarked().has_value(); }
    bool canMoveMarkedDown() const { return placeBelowMarked().has_value(); }
    void moveMarkedUp();
    void moveMarkedDown();
    /// Moves the rules before the one that is at `place` of the whole list; its length stands for the end.
    void move(const std::set<Uuid>& ids, std::size_t place);

    /// An unfinished rule stays off; its row has the reason.
    RuleEnablementResult setEnabled(const Uuid& id, bool enabled);
    /// Switches the rules in one step. Returns those that stay off because they are unfinished.
    std::set<Uuid> setEnabled(const std::set<Uuid>& ids, bool enabled);
    void enableAll();
    void disableAll();

  private:
    const std::vector<GestureRule>& rules() const { return m_store.rules().value(); }
    std::optional<std::size_t> placeOf(const Uuid& id) const;
    std::set<std::size_t> placesOf(const std::set<Uuid>& ids) const;
    std::optional<std::size_t> placeAboveMarked() const;
    std::optional<std::size_t> placeBelowMarked() const;
    WindowSelection selectionWithout(const std::set<Uuid>& ids) const;
    void follow();
    void updateRows();
    void updateCommands();

    RuleStore& m_store;
    RuleHistory& m_history;
    std::set<Uuid> m_conflicts;
    Published<WindowSelection> m_selection{WindowSelection::overview()};
    Published<std::set<Uuid>> m_marked;
    Published<std::vector<RuleRow>> m_rows;
    Published<RuleListCommands> m_commands;
    Published<std::string> m_filter;
    Published<std::optional<GestureDeletionRequest>> m_pendingDeletion;
    Subscription m_observer;
};

}  // namespace kinesta
