#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "cli/terminal/Console.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// The person's settings file as a subcommand uses it: problems are told and go into the exit status.
class StoredSettings {
  public:
    using Tell = std::function<void(const std::string&)>;

    /// Tells problems on the error stream.
    StoredSettings(const Console& console, const std::filesystem::path& path)
        : StoredSettings([&console](const std::string& problem) { console.fail(problem); }, path) {}
    StoredSettings(Tell tell, const std::filesystem::path& path)
        : m_tell(std::move(tell)), m_defaults(path, [this](const std::string& problem) { fail(problem); }) {}

    FileUserDefaults& defaults() { return m_defaults; }

    /// Reports a stored rule list that could not be read.
    void check(const RuleStore& store) {
        if (store.problem().empty())
            return;
        fail("The stored rules cannot be read: " + store.problem() + ". They are kept; mend them, or import others.");
    }

    /// badInput once a problem was reported.
    ExitStatus status() const { return m_status; }

  private:
    void fail(const std::string& problem) {
        m_tell(problem);
        m_status = ExitStatus::badInput;
    }

    Tell m_tell;
    ExitStatus m_status = ExitStatus::success;
    FileUserDefaults m_defaults;
};

}  // namespace kinesta
