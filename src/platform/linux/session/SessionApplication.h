#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "app/RunningApplication.h"
#include "platform/linux/session/MessageBus.h"
#include "platform/posix/SingleInstance.h"

namespace kinesta {

/// The application on this desktop, reached over the session bus. Whether it runs is decided by its lock: it takes the
/// lock first and comes to the bus a moment later.
class SessionApplication final : public RunningApplication {
  public:
    /// How long an application may take to come to the bus, to answer, or to end.
    static constexpr std::chrono::seconds kPatience{5};

    /// `settings` is the settings file, for SingleInstance.
    explicit SessionApplication(std::filesystem::path settings) : m_settings(std::move(settings)) {}

    Outcome ask(ApplicationRequest request) override;
    Result<Report> report() override;

    /// Asks once. Nothing if the application is not on the bus now, or left it before it answered.
    std::optional<Outcome> tryToAsk(ApplicationRequest request);
    bool hasBus() { return m_bus.open() != nullptr; }

  private:
    /// The answer to a call; nothing as above.
    using Answer = std::optional<Result<BusMessagePointer>>;

    Answer call(const char* interface, const char* method, const char* text = nullptr,
                std::optional<bool> flag = std::nullopt);
    Answer call(ApplicationRequest request);
    /// Calls until the application is on the bus and answers.
    template <typename Call>
    Result<BusMessagePointer> callPatiently(const Call& call);
    pid_t process();

    std::filesystem::path m_settings;
    MessageBus m_bus;
};

}  // namespace kinesta
