#pragma once

#include <filesystem>

#include "cli/Console.h"
#include "platform/linux/FileUserDefaults.h"

namespace kinesta {

/// The person's settings file as a subcommand uses it: problems go to the error stream and into the exit status.
class StoredSettings {
  public:
    StoredSettings(const Console& console, const std::filesystem::path& path)
        : m_defaults(path, [this, &console](const std::string& problem) {
              console.fail(problem);
              m_status = ExitStatus::badInput;
          }) {}

    FileUserDefaults& defaults() { return m_defaults; }

    /// badInput once a problem was reported.
    ExitStatus status() const { return m_status; }

  private:
    ExitStatus m_status = ExitStatus::success;
    FileUserDefaults m_defaults;
};

}  // namespace kinesta
