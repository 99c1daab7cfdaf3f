#include "platform/linuxupdates/SecureDownload.h"

#include <QNetworkRequest>
#include <QSslConfiguration>
#include <utility>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr int kMostRedirects = 5;

/// The system's authorities and those of the file that SSL_CERT_FILE names.
QSslConfiguration trustedAuthorities() {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (const QString file = qEnvironmentVariable("SSL_CERT_FILE"); !file.isEmpty())
        configuration.addCaCertificates(file);
    return configuration;
}

QNetworkRequest requestFor(const std::string& url, std::chrono::milliseconds silence) {
    QNetworkRequest request(QUrl(QString::fromStdString(url)));
    request.setSslConfiguration(trustedAuthorities());
    request.setTransferTimeout(static_cast<int>(silence.count()));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(kMostRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader, QByteArray("Kinesta"));
    // By default Qt sends the person's language.
    request.setRawHeader("Accept-Language", "en");
    // What is sent is counted and kept as it is, so nothing unfolds to more.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

}  // namespace

void SecureDownload::Later::operator()(QNetworkReply* reply) const {
    QObject::disconnect(reply, nullptr, nullptr, nullptr);
    reply->abort();
    reply->deleteLater();  // it may be calling us
}

SecureDownload::SecureDownload(QNetworkAccessManager& network, const std::string& url, Limits limits, Handlers handlers)
    : m_limits(limits), m_handlers(std::move(handlers)), m_reply(network.get(requestFor(url, limits.silence))) {
    m_reply->setReadBufferSize(qint64{256} * 1024);
    QObject::connect(m_reply.get(), &QNetworkReply::readyRead, m_reply.get(), [this] { read(); });
    QObject::connect(m_reply.get(), &QNetworkReply::finished, m_reply.get(), [this] {
        if (m_reply->error() == QNetworkReply::OperationCanceledError)
            return finish(Error{translated("the server does not answer")});
        if (m_reply->error() != QNetworkReply::NoError)
            return finish(Error{m_reply->errorString().toStdString()});
        if (read())
            finish(success());
    });
    m_deadline.setSingleShot(true);
    QObject::connect(&m_deadline, &QTimer::timeout, &m_deadline,
                     [this] { finish(Error{translated("it takes too long")}); });
    m_deadline.start(limits.time);
}

SecureDownload::~SecureDownload() = default;

bool SecureDownload::read() {
    // The text of an error page is no part of the file.
    if (m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200)
        return true;
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    Outcome taken = m_received > m_limits.bytes ? Outcome(Error{translated("it is longer than it may be")})
                                                : m_handlers.received(bytes);
    if (taken)
        return true;
    finish(std::move(taken));
    return false;
}

void SecureDownload::finish(Outcome outcome) {
    m_reply.reset();
    m_deadline.stop();
    // The handler may destroy this.
    const auto finished = std::exchange(m_handlers.finished, {});
    finished(std::move(outcome));
}

}  // namespace kinesta
