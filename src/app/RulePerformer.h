#pragma once

#include <functional>
#include <mutex>
#include <string>

#include "actions/ActionExecutor.h"
#include "app/Desktop.h"
#include "rules/GestureRule.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// The signed volume steps of a slide, 0 for every other gesture.
std::int64_t adjustmentSteps(const DetectedGesture& gesture);

/// Runs the action of a rule, with its cue.
void performRule(ActionExecutor& executor, const GestureRule& rule, std::int64_t steps);

/// Performs rules and finds out the result, for commands that report it to the user. Main thread only.
class RulePerformer {
  public:
    enum class Outcome {
        failed,
        /// The result is not known: programs may ignore a key or refuse a file.
        asked,
        done,
    };
    struct Report {
        Outcome outcome = Outcome::failed;
        /// Why it failed, or what is still uncertain: sentences, or empty.
        std::string why;
    };

    /// Shell commands are permitted by `settings`. `disableAllRules` does what the action of that name does in the
    /// running application, and returns whether it succeeded. Desktop and settings must outlive this.
    RulePerformer(Desktop& desktop, const UserDefaults& settings, std::function<bool()> disableAllRules);
    ~RulePerformer();
    RulePerformer(const RulePerformer&) = delete;
    RulePerformer& operator=(const RulePerformer&) = delete;

    /// Gives the desktop time to notice our virtual keyboard, if there is one.
    void prepareToPost();

    Report perform(const GestureRule& rule, std::int64_t steps);

    /// Waits until every request has been handed over, and returns what went wrong meanwhile. No rule can be performed
    /// afterwards.
    std::string finish();

  private:
    Report windowReport(WindowActionOutcomes::Kind kind);
    std::string takeProblems();

    Desktop& m_desktop;
    const UserDefaults& m_settings;
    std::function<bool()> m_disableAllRules;
    std::mutex m_lock;  // guards the problems, which arrive on more than one thread
    std::string m_problems;
    bool m_posts = false;
};

}  // namespace kinesta
