#pragma once

#include <filesystem>

#include "cli/Console.h"
#include "platform/linux/FileUserDefaults.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// The person's settings file as a subcommand uses it: problems go to the error stream and into the exit status.
class StoredSettings {
  public:
    StoredSettings(const Console& console, const std::filesystem::path& path)
        : m_console(console), m_defaults(path, [this](const std::string& problem) {
              m_console.fail(problem);
              m_status = ExitStatus::badInput;
          }) {}

    FileUserDefaults& defaults() { return m_defaults; }

    /// Reports a stored rule list that could not be read.
    void check(const RuleStore& store) {
        if (store.problem().empty())
            return;
        m_console.fail("The stored rules cannot be read: " + store.problem() +
                       ". They are kept; mend them, or import others.");
        m_status = ExitStatus::badInput;
    }

    /// badInput once a problem was reported.
    ExitStatus status() const { return m_status; }

  private:
    const Console& m_console;
    ExitStatus m_status = ExitStatus::success;
    FileUserDefaults m_defaults;
};

}  // namespace kinesta
