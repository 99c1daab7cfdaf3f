#pragma once

#include <QNetworkAccessManager>
#include <QTemporaryFile>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "app/SoftwareRelease.h"
#include "app/SoftwareUpdateController.h"
#include "platform/linuxupdates/SecureDownload.h"
#include "support/MainThread.h"
#include "support/Published.h"

namespace kinesta {

/// Where an update check stands.
struct UpdateProgress {
    enum class Stage { idle, checking, upToDate, found, downloading, verifying, finished, failed };

    Stage stage = Stage::idle;

    bool isBusy() const { return stage == Stage::checking || stage == Stage::downloading || stage == Stage::verifying; }

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
class UpdateCheck {
  public:
    struct Environment {
        MainThread& mainThread;
        RunningSystem running;
        /// Where downloads go.
        std::string folder;
    };

    UpdateCheck(Environment environment, UpdateConfiguration configuration);
    ~UpdateCheck();
    UpdateCheck(const UpdateCheck&) = delete;
    UpdateCheck& operator=(const UpdateCheck&) = delete;

    const Published<UpdateProgress>& progress() const { return m_progress; }
    /// Reads the feed, unless something else is under way.
    void check();
    /// Downloads the release that was found.
    void download();
    /// Ends a check or a download. Nothing is kept.
    void cancel();

  private:
    using Stage = UpdateProgress::Stage;

    void readFeed();
    void verify();
    void keep(bool isGenuine);
    void enter(Stage stage);
    void fail(const std::string& problem);
    QNetworkAccessManager& network();

    Environment m_environment;
    UpdateConfiguration m_configuration;
    Published<UpdateProgress> m_progress;
    std::unique_ptr<QNetworkAccessManager> m_network;
    std::unique_ptr<SecureDownload> m_transfer;
    QByteArray m_feed;
    std::unique_ptr<QTemporaryFile> m_file;
    std::thread m_verification;
    /// Points here while this lives. Posted tasks hold it weakly.
    std::shared_ptr<UpdateCheck*> m_self = std::make_shared<UpdateCheck*>(this);
};

}  // namespace kinesta
