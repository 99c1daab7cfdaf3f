#pragma once

#include <QProcess>
#include <QStringList>
#include <functional>
#include <string>

#include "app/SoftwareUpdater.h"
#include "support/Clock.h"
#include "support/MainThread.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Checks for updates by starting the program that does it, now or once a day. Main thread only.
class UpdaterProcess final : public SoftwareUpdater {
  public:
    /// Whether to check once a day.
    static constexpr std::string_view automaticCheckKey = "softwareUpdateAutomaticCheck.v1";
    /// When the feed was last read, in seconds of the wall clock.
    static constexpr std::string_view lastCheckKey = "softwareUpdateLastCheck.v1";

    struct Environment {
        MainThread& mainThread;
        const Clock& clock;
        UserDefaults& defaults;
        std::string program;
        /// The file of the build's information, for the program.
        std::string bundle;
        /// How its window should look now, as its options say it.
        std::function<QStringList()> look;
    };

    explicit UpdaterProcess(Environment environment);

    void start() override;
    void checkForUpdates() override { check({}); }
    const Published<bool>& canCheckForUpdates() const override { return m_canCheck; }
    const Published<bool>& automaticallyChecksForUpdates() const override { return m_isAutomatic; }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override;

  private:
    void check(const QStringList& options);
    void ended(bool wasRead);
    void schedule();

    Environment m_environment;
    Published<bool> m_canCheck{true};
    Published<bool> m_isAutomatic{false};
    DelayedTask m_nextCheck;
    QProcess m_process;
};

}  // namespace kinesta
