#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/GestureRule.h"
#include "support/Published.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The outcome of enabling or disabling.
enum class RuleEnablementResult { changed, unchanged, ruleNotReady };

/// The one ordered list of rules, saved after every change. Main thread only.
class RuleStore {
  public:
    static constexpr std::string_view storageKey = "gestureRules.v1";
    static constexpr std::string_view setAsideKey = "gestureRules.v1.unreadable-";

    /// A read-write view of one rule for an editor. Must not outlive the store.
    class Binding {
      public:
        Binding(RuleStore& store, Uuid id) : m_store(&store), m_id(id) {}

        /// The rule, or the recommended default once the rule is gone.
        GestureRule get() const;
        /// Replaces the rule, disabled if it is not ready, and saves. Nothing if the rule is gone.
        void set(GestureRule rule) const;

      private:
        RuleStore* m_store;
        Uuid m_id;
    };

    /// Loads the stored list; starts with the recommended default rule, unsaved, when there is none that decodes.
    /// `defaults` must outlive the store.
    explicit RuleStore(UserDefaults& defaults);

    const Published<std::vector<GestureRule>>& rules() const { return m_rules; }

    /// Appends a blank, disabled rule.
    Uuid addRule();
    void deleteRules(const std::set<Uuid>& ids);
    /// Moves the rules at `fromOffsets` before the rule that was at `toOffset` (the list's length: to the end),
    /// keeping their order. Offsets beyond the list are ignored.
    void moveRules(const std::set<std::size_t>& fromOffsets, std::size_t toOffset);
    RuleEnablementResult setRuleEnabled(const Uuid& id, bool enabled);
    bool canEnableAllRules() const;
    RuleEnablementResult enableAllRules();
    void disableAllRules();
    /// Replaces the whole list in one edit; enabled rules that are not ready are switched off.
    void setRules(std::vector<GestureRule> rules);
    /// Replaces the whole list, as an import does; enabled rules that are not ready are switched off. The caller must
    /// keep a copy of the previous list if it is needed.
    void replaceRules(std::vector<GestureRule> rules);
    std::optional<Binding> binding(const Uuid& id);
    /// Reads the stored list again, after another process changed it; publishes only a list that differs. If the stored
    /// list was removed, the default list applies; if it does not decode, the current list stays.
    void reload();

    /// Why the stored list could not be used when it was last read, with the position; empty if it could. Such a list
    /// stays stored until the next change, which moves it to the key `setAsideKey` plus a number.
    const std::string& problem() const { return m_problem; }

    /// The list with every enabled shell-command rule that was not acknowledged switched off.
    static std::vector<GestureRule> disablingUnacknowledgedShellRules(std::vector<GestureRule> rules);

    void save();

  private:
    void setUnreadableAside();
    void publishIfChanged(std::vector<GestureRule> rules);
    void change(std::vector<GestureRule> rules);

    UserDefaults& m_defaults;
    std::string m_problem;
    Published<std::vector<GestureRule>> m_rules;
};

}  // namespace kinesta
