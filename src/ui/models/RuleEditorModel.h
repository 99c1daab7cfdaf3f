#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/RuleHistory.h"
#include "feedback/GestureTestSession.h"
#include "rules/GestureTypeChoice.h"
#include "rules/RuleSelection.h"
#include "rules/RuleStore.h"
#include "rules/SystemGestureWarningChecker.h"
#include "support/MainThread.h"
#include "support/Published.h"
#include "ui/models/GesturePicker.h"

namespace kinesta {

/// Another rule, by what the window needs to show it.
struct RuleReference {
    Uuid id;
    std::string name;

    friend bool operator==(const RuleReference&, const RuleReference&) = default;
};

/// All that the editor of a rule shows.
struct RuleEditorContent {
    GestureRule rule;
    GestureTypeChoice type = GestureTypeChoice::unconfigured;
    /// The kinds of action that the gesture allows, in the order of their list.
    std::vector<ActionKind> actionKinds;
    /// The text of the cue if the rule had no label of its own.
    std::string cuePlaceholder;
    /// The other enabled rules that want the same gesture, in the order of the list: see kClashReason.
    std::vector<RuleReference> rivals;
    /// Whether the rule comes before all of them.
    bool comesFirst = false;
    std::optional<SystemGestureWarning> systemWarning;
    /// What must be chosen before the rule can be switched on.
    std::optional<std::string> missing;
    /// An edit made the rule unready, so it was switched off. It can be turned on once nothing is missing.
    bool wasSwitchedOffByEdit = false;
    bool canTurnOn = false;
    /// The shell command was confirmed before its text changed.
    bool mustConfirmAgain = false;
    /// The next recognized gesture becomes that of the rule.
    bool waitsForGesture = false;

    friend bool operator==(const RuleEditorContent&, const RuleEditorContent&) = default;
};

/// The editor of one rule. Each change is saved at once and is a step of the history. Main thread only.
class RuleEditorModel {
  public:
    /// The referents must outlive this.
    struct Parts {
        RuleStore& store;
        RuleHistory& history;
        /// Active while the editor waits for a gesture, so that no rule runs.
        GestureTestSession& testSession;
        MainThread& mainThread;
        GestureSystem system = GestureSystem::none;
    };

    /// The rule must exist.
    RuleEditorModel(const Parts& parts, const Uuid& id);
    ~RuleEditorModel();
    RuleEditorModel(const RuleEditorModel&) = delete;
    RuleEditorModel& operator=(const RuleEditorModel&) = delete;

    /// Called once when the rule is gone. No change has an effect from then on.
    std::function<void()> onGone;

    /// Set only when something differs; keeps the last state of a rule that is gone.
    const Published<RuleEditorContent>& content() const { return m_content; }

    void setName(const std::string& name);
    /// An unfinished rule stays off.
    RuleEnablementResult setEnabled(bool enabled);

    /// Keeps the repetition if the type has one.
    void setType(GestureTypeChoice type);
    /// Nothing happens if the gesture has no such picker.
    void pick(GesturePicker picker, int value);

    /// How long the actions rest after the last gesture that was taken: its fingers may still be on their way.
    static constexpr Seconds restAfterGesture = 1;
    /// Waits for gestureRecognized(), with actions at rest. The caller may give up with `false`.
    void setWaitsForGesture(bool waits);
    /// Takes every recognized gesture, as from the observer of GestureDispatcher.
    void gestureRecognized(const DetectedGesture& gesture);

    /// Nothing happens for a kind that the gesture does not allow. What belongs to the old kind is cleared.
    void setActionKind(ActionKind kind);
    /// A changed shell command must be acknowledged again.
    void setActionValue(const std::string& value);
    void setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers);
    void setArguments(const std::vector<std::string>& arguments);
    void setShellCommandAcknowledged(bool acknowledged);

    void setShowsCue(bool shows);
    /// An empty label stands for none.
    void setCueLabel(const std::string& label);

    /// The next keystroke begins a step of the history: a field has lost the focus.
    void endTyping() { m_parts.history.endTyping(); }

  private:
    using Change = std::function<void(GestureRule&)>;

    void endSession();
    void edit(const Change& change) { edit(change, std::nullopt); }
    void edit(const Change& change, std::optional<TypedField> field);
    void follow(const std::vector<GestureRule>& rules);
    void publish(const std::vector<GestureRule>& rules, const GestureRule& rule);
    void findRivals(RuleEditorContent& content, const std::vector<GestureRule>& rules) const;

    Parts m_parts;
    Uuid m_id;
    bool m_isGone = false;
    bool m_wasSwitchedOffByEdit = false;
    bool m_mustConfirmAgain = false;
    bool m_waitsForGesture = false;
    bool m_hasBegunSession = false;
    DelayedTask m_rest;
    Published<RuleEditorContent> m_content;
    Subscription m_observer;
};

}  // namespace kinesta
