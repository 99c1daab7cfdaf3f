#pragma once

#include <QNetworkAccessManager>
#include <QTemporaryFile>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "app/SoftwareRelease.h"
#include "app/SoftwareUpdateController.h"
#include "platform/linuxdesktop/updates/SecureDownload.h"
#include "support/Clock.h"
#include "support/MainThread.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Where an update check stands.
struct UpdateProgress {
    enum class Stage { idle, checking, upToDate, found, downloading, verifying, finished, failed };

    Stage stage = Stage::idle;
    /// Whether the person asked for the check, and so wants to see every result.
    bool isAskedFor = false;
    /// From found on.
    SoftwareRelease release;
    std::uint64_t received = 0;
    /// When finished: where the file is.
    std::string file;
    /// When failed: a sentence.
    std::string problem;
};

/// Reads the update feed, downloads the newest release when the person says so, and verifies its signature. Installs
/// nothing. Main thread only; the verification has a thread of its own.
class FeedUpdater final : public SoftwareUpdater {
  public:
    /// Whether to check once a day.
    static constexpr std::string_view automaticCheckKey = "softwareUpdateAutomaticCheck.v1";
    /// When the feed was last read, in seconds of the wall clock.
    static constexpr std::string_view lastCheckKey = "softwareUpdateLastCheck.v1";

    struct Environment {
        MainThread& mainThread;
        const Clock& clock;
        UserDefaults& defaults;
        RunningSystem running;
        /// Where downloads go.
        std::string folder;
    };

    FeedUpdater(Environment environment, UpdateConfiguration configuration);
    ~FeedUpdater() override;

    void start() override;
    void checkForUpdates() override { check(true); }
    const Published<bool>& canCheckForUpdates() const override { return m_canCheck; }
    const Published<bool>& automaticallyChecksForUpdates() const override { return m_isAutomatic; }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override;

    const Published<UpdateProgress>& progress() const { return m_progress; }
    /// Downloads the release that was found.
    void download();
    /// Ends a check or a download. Nothing is kept.
    void cancel();

  private:
    using Stage = UpdateProgress::Stage;

    void check(bool isAskedFor);
    void scheduleAutomaticCheck();
    void readFeed();
    void verify();
    void keep(bool isGenuine);
    void enter(Stage stage);
    void fail(const std::string& problem);
    QNetworkAccessManager& network();

    Environment m_environment;
    UpdateConfiguration m_configuration;
    Published<bool> m_canCheck{true};
    Published<bool> m_isAutomatic{false};
    Published<UpdateProgress> m_progress;
    std::unique_ptr<QNetworkAccessManager> m_network;
    std::unique_ptr<SecureDownload> m_transfer;
    QByteArray m_feed;
    std::unique_ptr<QTemporaryFile> m_file;
    std::thread m_verification;
    DelayedTask m_nextCheck;
    /// Points here while this lives. Posted tasks hold it weakly.
    std::shared_ptr<FeedUpdater*> m_self = std::make_shared<FeedUpdater*>(this);
};

}  // namespace kinesta
