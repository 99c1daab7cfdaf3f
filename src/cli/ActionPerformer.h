#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>

#include "actions/ActionExecutor.h"
#include "cli/terminal/Console.h"
#include "platform/linux/LinuxActions.h"
#include "rules/GestureRule.h"
#include "support/SteadyClock.h"

namespace kinesta {

/// Performs actions for a subcommand, and finds out what came of them.
class ActionPerformer {
  public:
    enum class Outcome {
        failed,
        /// Nobody tells what came of it: a program may refuse a key or a file.
        asked,
        done,
    };
    struct Report {
        Outcome outcome = Outcome::failed;
        /// Why it failed, or what is still open: sentences, or empty.
        std::string why;
    };

    /// The executor reads the settings in `defaults`, which must outlive this. `stored` is the person's settings file,
    /// which “Disable all rules” changes.
    ActionPerformer(const Console& console, const UserDefaults& defaults, std::filesystem::path stored);
    ~ActionPerformer();
    ActionPerformer(const ActionPerformer&) = delete;
    ActionPerformer& operator=(const ActionPerformer&) = delete;

    /// Waits until the desktop can have noticed a device of ours for keys, where there is one.
    void prepareToPost();

    Report perform(const GestureRule& rule, std::int64_t steps);

    /// Waits until everything was handed over; what went wrong meanwhile. Nothing can be performed after it.
    std::string finish();

  private:
    Report disableAllRules();
    Report windowReport(WindowOutcomes::Kind kind);
    std::string takeProblems();

    const Console& m_console;
    const std::filesystem::path m_stored;
    const UserDefaults& m_defaults;
    SteadyClock m_clock;
    std::mutex m_lock;  // of the problems, which are told on more than one thread
    std::string m_problems;
    bool m_posts = false;
    std::optional<LinuxActions> m_actions;
};

}  // namespace kinesta
