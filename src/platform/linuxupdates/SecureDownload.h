#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "support/Result.h"

namespace kinesta {

/// One file fetched over https, within limits of size, time and redirects. Sends nothing about the person:
/// no cookies, no language, no version. Main thread only.
class SecureDownload {
  public:
    struct Limits {
        qint64 bytes = 0;
        /// For the whole transfer.
        std::chrono::milliseconds time{};
        /// Without a byte.
        std::chrono::milliseconds silence{30'000};
    };
    struct Handlers {
        /// Receives what has arrived. An error ends the transfer with it.
        std::function<Outcome(const QByteArray&)> received;
        /// Called once at the end, unless this is destroyed before.
        std::function<void(Outcome)> finished;
    };

    /// `network` must outlive this.
    SecureDownload(QNetworkAccessManager& network, const std::string& url, Limits limits, Handlers handlers);
    /// Ends the transfer.
    ~SecureDownload();
    SecureDownload(const SecureDownload&) = delete;
    SecureDownload& operator=(const SecureDownload&) = delete;

  private:
    /// Returns whether the transfer goes on. If it does not, this may be gone.
    bool read();
    void finish(Outcome outcome);

    struct Later {
        void operator()(QNetworkReply* reply) const;
    };

    Limits m_limits;
    Handlers m_handlers;
    std::unique_ptr<QNetworkReply, Later> m_reply;
    QTimer m_deadline;
    qint64 m_received = 0;
};

}  // namespace kinesta
