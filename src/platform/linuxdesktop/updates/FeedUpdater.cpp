#include "platform/linuxdesktop/updates/FeedUpdater.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <algorithm>

#include "actions/OpenTarget.h"
#include "platform/linuxdesktop/updates/ReleaseSignature.h"
#include "platform/linuxdesktop/updates/UpdateFeed.h"

namespace kinesta {
namespace {

using namespace std::chrono_literals;

constexpr Seconds kBetweenChecks = 24 * 3600;
/// The start of the application, and of the desktop, comes first.
constexpr Seconds kAfterStart = 60;
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
    const QFileInfo wanted(QDir(folder), name);
    QString path = wanted.filePath();
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder).filePath(
            QStringLiteral("%1 (%2).%3").arg(wanted.baseName()).arg(number).arg(wanted.completeSuffix()));
    return path;
}

}  // namespace

FeedUpdater::FeedUpdater(Environment environment, UpdateConfiguration configuration)
    : m_environment(std::move(environment)), m_configuration(std::move(configuration)) {}

FeedUpdater::~FeedUpdater() {
    if (m_verification.joinable())
        m_verification.join();
}

void FeedUpdater::start() {
    m_isAutomatic.set(m_environment.defaults.boolean(automaticCheckKey).value_or(false));
    scheduleAutomaticCheck();
}

void FeedUpdater::setAutomaticallyChecksForUpdates(bool isAutomatic) {
    if (isAutomatic == m_isAutomatic.value())
        return;
    m_environment.defaults.setBoolean(automaticCheckKey, isAutomatic);
    m_isAutomatic.set(isAutomatic);
    scheduleAutomaticCheck();
}

void FeedUpdater::scheduleAutomaticCheck() {
    m_nextCheck.cancel();
    if (!m_isAutomatic.value())
        return;
    // A time in the future comes from a clock that was wrong, and counts as now.
    const Seconds now = m_environment.clock.wallClock();
    const Seconds last = std::min(m_environment.defaults.real(lastCheckKey).value_or(0), now);
    const Seconds wait = std::clamp(last + kBetweenChecks - now, kAfterStart, kBetweenChecks);
    m_nextCheck = m_environment.mainThread.after(wholeNanoseconds(wait), [this] {
        if (m_progress.value().stage != Stage::found)  // the person has not decided yet
            check(false);
        scheduleAutomaticCheck();
    });
}

void FeedUpdater::check(bool isAskedFor) {
    if (!m_canCheck.value())
        return;
    m_canCheck.set(false);
    UpdateProgress progress;
    progress.stage = Stage::checking;
    progress.isAskedFor = isAskedFor;
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
                                             fail("The update feed cannot be read: " + outcome.error().message + ".");
                                     }});
}

void FeedUpdater::readFeed() {
    m_environment.defaults.setReal(lastCheckKey, m_environment.clock.wallClock());
    const auto releases = readUpdateFeed(m_feed);
    m_feed.clear();
    if (!releases)
        return fail("The update feed cannot be read: " + releases.error().message + ".");
    const SoftwareRelease* newest = newestRelease(*releases, m_environment.running);
    if (newest == nullptr)
        return enter(Stage::upToDate);
    UpdateProgress progress = m_progress.value();
    progress.release = *newest;
    m_progress.set(std::move(progress));
    enter(Stage::found);
}

void FeedUpdater::download() {
    if (m_progress.value().stage != Stage::found)
        return;
    // Without a name until it is verified, so that nothing is left of it even by a crash.
    m_file = std::make_unique<QTemporaryFile>(
        QDir(QString::fromStdString(m_environment.folder)).filePath(QStringLiteral(".kinesta-update-XXXXXX")));
    if (!QDir().mkpath(QString::fromStdString(m_environment.folder)) || !m_file->open())
        return fail("The update cannot be stored in " + m_environment.folder + ": " +
                    m_file->errorString().toStdString() + ".");
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
                                             fail("The update cannot be downloaded: " + outcome.error().message + ".");
                                     }});
}

void FeedUpdater::verify() {
    m_transfer.reset();
    if (!m_file->flush())
        return fail("The update cannot be stored: " + m_file->errorString().toStdString() + ".");
    if (m_progress.value().received != m_progress.value().release.length)
        return fail("The update is incomplete. Nothing was kept.");
    enter(Stage::verifying);
    if (m_verification.joinable())
        m_verification.join();
    // Reading a large file twice takes too long for the main thread. Nobody else touches the file meanwhile.
    m_verification =
        std::thread([this, self = std::weak_ptr(m_self), signature = m_progress.value().release.signature] {
            const bool isGenuine = isSignedBy(m_configuration.publicKey, *m_file, signature);
            m_environment.mainThread.post([self, isGenuine] {
                if (const auto updater = self.lock())
                    (*updater)->keep(isGenuine);
            });
        });
}

void FeedUpdater::keep(bool isGenuine) {
    m_verification.join();
    if (!isGenuine)
        return fail("The update is not signed by the makers of Kinesta. Nothing was kept.");
    const QString path =
        freePath(QString::fromStdString(m_environment.folder), fileNameFor(m_progress.value().release));
    m_file->setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    if (!m_file->rename(path))
        return fail("The update cannot be stored as " + path.toStdString() + ": " +
                    m_file->errorString().toStdString() + ".");
    m_file->setAutoRemove(false);
    UpdateProgress progress = m_progress.value();
    progress.file = path.toStdString();
    m_progress.set(progress);
    enter(Stage::finished);
}

void FeedUpdater::cancel() {
    // A verification ends by itself within moments; then the person may cancel no more.
    if (m_progress.value().stage != Stage::verifying)
        enter(Stage::idle);
}

void FeedUpdater::enter(Stage stage) {
    UpdateProgress progress = m_progress.value();
    progress.stage = stage;
    const bool isBusy = stage == Stage::checking || stage == Stage::downloading || stage == Stage::verifying;
    if (!isBusy) {
        m_transfer.reset();
        m_file.reset();
    }
    m_canCheck.set(!isBusy);
    m_progress.set(std::move(progress));
}

void FeedUpdater::fail(const std::string& problem) {
    UpdateProgress progress = m_progress.value();
    progress.problem = problem;
    m_progress.set(std::move(progress));
    enter(Stage::failed);
}

QNetworkAccessManager& FeedUpdater::network() {
    // Made late: most days need no network.
    if (!m_network)
        m_network = std::make_unique<QNetworkAccessManager>();
    return *m_network;
}

}  // namespace kinesta
