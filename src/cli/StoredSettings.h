#pragma once

#include <string>

#include "app/Desktop.h"
#include "app/RuleTransfer.h"
#include "cli/terminal/Console.h"

namespace kinesta {

/// The user's settings for a subcommand. Problems go to the error stream and set the exit status.
class StoredSettings {
  public:
    StoredSettings(const Console& console, Desktop& desktop) : m_console(console), m_desktop(desktop) {
        m_desktop.onSettingsProblem([this](const std::string& problem) { m_status = m_console.fail(problem); });
        m_desktop.defaults();
    }
    ~StoredSettings() { m_desktop.onSettingsProblem({}); }
    StoredSettings(const StoredSettings&) = delete;
    StoredSettings& operator=(const StoredSettings&) = delete;

    UserDefaults& defaults() { return m_desktop.defaults(); }

    /// Reports a stored rule list that could not be read.
    void check(const RuleStore& store) {
        if (const auto problem = problemOfStoredRules(store))
            m_status = m_console.fail(*problem);
    }

    /// Switches all rules off and stores that. Returns whether it succeeded.
    bool disableAllRules() {
        RuleStore store(defaults());
        check(store);
        if (m_status == ExitStatus::success)
            store.disableAllRules();
        return m_status == ExitStatus::success;
    }

    /// badInput if a problem has been reported.
    ExitStatus status() const { return m_status; }

  private:
    const Console& m_console;
    Desktop& m_desktop;
    ExitStatus m_status = ExitStatus::success;
};

}  // namespace kinesta
