#include "platform/linuxupdates/UpdateCheck.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <algorithm>

#include "actions/OpenTarget.h"
#include "platform/linuxupdates/ReleaseSignature.h"
#include "platform/linuxupdates/UpdateFeed.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using namespace std::chrono_literals;

constexpr SecureDownload::Limits kFeedLimits{.bytes = 1 << 20, .time = 60s};
constexpr std::chrono::milliseconds kDownloadTime = 2h;

/// The last part of the address, as far as it is a harmless file name.
QString fileNameFor(const SoftwareRelease& release) {
    QString name;
    for (const QChar c : QUrl(QString::fromStdString(release.url)).fileName())
        if (c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringLiteral("._-+~").contains(c)))
            name += c;
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return name.isEmpty() || name.size() > 128 ? QStringLiteral("kinesta-") + QString::fromStdString(release.version)
                                               : name;
}

/// `folder`/`name`, or with a number before the ending if that is taken.
QString freePath(const QString& folder, const QString& name) {
    QString path = QDir(folder).filePath(name);
    // The last point: those before it belong to the version.
    const qsizetype ending = name.contains(u'.') ? name.lastIndexOf(u'.') : name.size();
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder).filePath(QString(name).insert(ending, QStringLiteral(" (%1)").arg(number)));
    return path;
}

}  // namespace

UpdateCheck::UpdateCheck(Environment environment, UpdateConfiguration configuration)
    : m_environment(std::move(environment)), m_configuration(std::move(configuration)) {}

UpdateCheck::~UpdateCheck() {
    if (m_verification.joinable())
        m_verification.join();
}

void UpdateCheck::check() {
    if (m_progress.value().isBusy())
        return;
    UpdateProgress progress;
    progress.stage = Stage::checking;
    m_progress.set(std::move(progress));
    m_feed.clear();
    m_transfer = std::make_unique<SecureDownload>(
        network(), m_configuration.feed, kFeedLimits,
        SecureDownload::Handlers{.received =
                                     [this](const QByteArray& bytes) {
                                         m_feed += bytes;
                                         return success();
                                     },
                                 .finished =
                                     [this](const Outcome& outcome) {
                                         if (outcome)
                                             readFeed();
                                         else
                                             fail(translated("The update feed cannot be read: %1.",
                                                             {outcome.error().message}));
                                     }});
}

void UpdateCheck::readFeed() {
    const auto releases = readUpdateFeed(m_feed);
    m_feed.clear();
    if (!releases)
        return fail(translated("The update feed cannot be read: %1.", {releases.error().message}));
    const SoftwareRelease* newest = newestRelease(*releases, m_environment.running);
    if (newest == nullptr)
        return enter(Stage::upToDate);
    UpdateProgress progress = m_progress.value();
    progress.release = *newest;
    m_progress.set(std::move(progress));
    enter(Stage::found);
}

void UpdateCheck::download() {
    if (m_progress.value().stage != Stage::found)
        return;
    // Without a name until it is verified, so that nothing is left of it even by a crash.
    m_file = std::make_unique<QTemporaryFile>(
        QDir(QString::fromStdString(m_environment.folder)).filePath(QStringLiteral(".kinesta-update-XXXXXX")));
    if (!QDir().mkpath(QString::fromStdString(m_environment.folder)) || !m_file->open())
        return fail(translated("The update cannot be stored in %1: %2.",
                               {m_environment.folder, m_file->errorString().toStdString()}));
    enter(Stage::downloading);
    const SecureDownload::Limits limits{.bytes = static_cast<qint64>(m_progress.value().release.length),
                                        .time = kDownloadTime};
    m_transfer = std::make_unique<SecureDownload>(
        network(), m_progress.value().release.url, limits,
        SecureDownload::Handlers{.received = [this](const QByteArray& bytes) -> Outcome {
                                     if (m_file->write(bytes) != bytes.size())
                                         return Error{m_file->errorString().toStdString()};
                                     UpdateProgress progress = m_progress.value();
                                     progress.received += static_cast<std::uint64_t>(bytes.size());
                                     m_progress.set(std::move(progress));
                                     return success();
                                 },
                                 .finished =
                                     [this](const Outcome& outcome) {
                                         if (outcome)
                                             verify();
                                         else
                                             fail(translated("The update cannot be downloaded: %1.",
                                                             {outcome.error().message}));
                                     }});
}

void UpdateCheck::verify() {
    m_transfer.reset();
    if (!m_file->flush())
        return fail(translated("The update cannot be stored: %1.", {m_file->errorString().toStdString()}));
    if (m_progress.value().received != m_progress.value().release.length)
        return fail(translated("The update is incomplete. Nothing was kept."));
    enter(Stage::verifying);
    if (m_verification.joinable())
        m_verification.join();
    // Reading a large file twice takes too long for the main thread. No other code touches the file meanwhile.
    m_verification =
        std::thread([this, self = std::weak_ptr(m_self), signature = m_progress.value().release.signature] {
            const bool isGenuine = isSignedBy(m_configuration.publicKey, *m_file, signature);
            m_environment.mainThread.post([self, isGenuine] {
                if (const auto updater = self.lock())
                    (*updater)->keep(isGenuine);
            });
        });
}

void UpdateCheck::keep(bool isGenuine) {
    m_verification.join();
    if (!isGenuine)
        return fail(translated("The update is not signed by the makers of Kinesta. Nothing was kept."));
    const QString path =
        freePath(QString::fromStdString(m_environment.folder), fileNameFor(m_progress.value().release));
    m_file->setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    if (!m_file->rename(path))
        return fail(translated("The update cannot be stored as %1: %2.",
                               {path.toStdString(), m_file->errorString().toStdString()}));
    m_file->setAutoRemove(false);
    UpdateProgress progress = m_progress.value();
    progress.file = path.toStdString();
    m_progress.set(progress);
    enter(Stage::finished);
}

void UpdateCheck::cancel() {
    // A verification ends by itself within moments; then the person may cancel no more.
    if (m_progress.value().stage != Stage::verifying)
        enter(Stage::idle);
}

void UpdateCheck::enter(Stage stage) {
    UpdateProgress progress = m_progress.value();
    progress.stage = stage;
    if (!progress.isBusy()) {
        m_transfer.reset();
        m_file.reset();
    }
    m_progress.set(std::move(progress));
}

void UpdateCheck::fail(const std::string& problem) {
    UpdateProgress progress = m_progress.value();
    progress.problem = problem;
    m_progress.set(std::move(progress));
    enter(Stage::failed);
}

QNetworkAccessManager& UpdateCheck::network() {
    // Made late: most days need no network.
    if (!m_network)
        m_network = std::make_unique<QNetworkAccessManager>();
    return *m_network;
}

}  // namespace kinesta
