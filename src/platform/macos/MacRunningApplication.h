#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <utility>

#include "app/RunningApplication.h"

namespace kinesta {

/// The application that runs in another process. It is shown by starting it again, and reads its settings again or ends
/// by a signal; nothing else reaches it from outside.
class MacRunningApplication final : public RunningApplication {
  public:
    static constexpr std::chrono::seconds kPatience{5};

    /// `settings` is what the one instance is claimed with; `bundle` may be empty.
    MacRunningApplication(std::filesystem::path settings, std::filesystem::path bundle)
        : m_settings(std::move(settings)), m_bundle(std::move(bundle)) {}

    Outcome ask(ApplicationRequest request) override;
    bool isRunning() override;
    Result<Report> report() override;

    /// What starts the application, or shows its window if it runs: the words of a command.
    static std::vector<std::string> opening(const std::filesystem::path& bundle);

  private:
    Result<pid_t> process() const;
    Outcome show() const;

    std::filesystem::path m_settings;
    std::filesystem::path m_bundle;
};

/// Sends a signal to a process of this user and waits until it has ended, at most for the time. Returns whether it has.
bool endProcess(pid_t process, int signal, std::chrono::milliseconds patience);

}  // namespace kinesta
