#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "rules/RuleStore.h"
#include "support/Clock.h"
#include "support/Published.h"

namespace kinesta {

/// The fields of a rule that are typed in. What is typed into one of them without a pause is one step.
enum class TypedField { name, cueLabel, value, arguments };

/// Undo and redo of edits of rules and of their order. The store stays the truth: every step changes only what it
/// changed before, and is saved at once. Main thread only.
///
/// What happens to the store outside of record() is no step, and clears what can no longer be undone:
/// - a rule that was deleted: its edits, and its part in changes of the order;
/// - a rule that was changed (by an import, another process or an action): the edits of the same part of it. The parts
///   are the name, the switch, whether it shows a cue, and gesture with action;
/// - rules in another order: all changes of the order;
/// - anything: a replacement of the whole list.
/// A rule that was added clears nothing else.
class RuleHistory {
  public:
    /// A pause of this length between keystrokes ends a step.
    static constexpr Seconds typingPause = 0.5;
    /// Older steps are forgotten.
    static constexpr std::size_t maximumSteps = 100;

    struct Possibilities {
        bool undo = false;
        bool redo = false;

        friend bool operator==(const Possibilities&, const Possibilities&) = default;
    };

    /// Store and clock must outlive this.
    RuleHistory(RuleStore& store, const Clock& clock);

    const Published<Possibilities>& possibilities() const { return m_possibilities; }

    /// Calls `change`, which edits or reorders rules of the store, and keeps the difference as one step.
    void record(const std::function<void()>& change);
    /// The same for one keystroke in a field of a rule.
    void record(const std::function<void()>& change, const Uuid& rule, TypedField field);
    /// Replaces the whole list with `change`, as one step.
    void recordReplacement(const std::function<void()>& change);
    /// Keeps a step of something else than rules, which has happened: how to take it back, and how to do it again.
    void recordOther(std::function<void()> back, std::function<void()> forth);
    /// The next keystroke begins a step: the field has lost the focus.
    void endTyping() { m_typing.reset(); }

    /// What was undone or redone.
    struct Moved {
        enum class Kind { nothing, edit, order, replacement, other };

        Kind kind = Kind::nothing;
        /// A rule that was edited, if there is one.
        std::optional<Uuid> rule;
    };
    /// Each does nothing if it is not possible.
    Moved undo();
    Moved redo();

  private:
    using Rules = std::vector<GestureRule>;

    /// A rule before and after. Parts that are equal in both were not changed.
    struct Edit {
        GestureRule before;
        GestureRule after;
    };
    struct Step {
        std::vector<Edit> edits;
        /// The rules that both lists have in common; empty if their order is the same.
        std::vector<Uuid> orderBefore;
        std::vector<Uuid> orderAfter;
        /// The whole list before and after, if it was replaced.
        std::optional<std::pair<Rules, Rules>> lists;
        /// Something else than rules.
        std::function<void()> back;
        std::function<void()> forth;

        bool isEmpty() const { return edits.empty() && orderBefore.empty() && !lists && !back; }
        /// One edit and nothing else.
        bool isSingleEdit() const { return edits.size() == 1 && orderBefore.empty() && !lists && !back; }
    };
    struct Typing {
        Uuid rule;
        TypedField field;
        Uptime at;
    };
    enum class Direction { back, forth };

    static Step difference(const Rules& before, const Rules& after);
    static void clearMeaningless(std::vector<Step>& steps, const Step& change, const Rules& rules);
    Step changeOf(const std::function<void()>& change);
    void keep(Step step);
    void dropWhatCancelsOut();
    void follow(const Rules& rules);
    Moved move(std::vector<Step>& from, std::vector<Step>& to, Direction direction);
    void apply(const Step& step, bool isBack);
    void publish();

    RuleStore& m_store;
    const Clock& m_clock;
    Rules m_known;
    bool m_isOwnChange = false;
    std::optional<Rules> m_beforeOwnChange;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
    std::optional<Typing> m_typing;
    Published<Possibilities> m_possibilities;
    Subscription m_observer;
};

}  // namespace kinesta
