#include "platform/linuxdesktop/UpdaterProcess.h"

#include <algorithm>
#include <utility>

namespace kinesta {
namespace {

constexpr Seconds kBetweenChecks = 24.0 * 3600;
/// The start of the application, and of the desktop, comes first.
constexpr Seconds kAfterStart = 60;

}  // namespace

UpdaterProcess::UpdaterProcess(Environment environment) : m_environment(std::move(environment)) {
    m_process.setProgram(QString::fromStdString(m_environment.program));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardInputFile(QProcess::nullDevice());
    QObject::connect(&m_process, &QProcess::finished, &m_process, [this](int status, QProcess::ExitStatus exit) {
        ended(exit == QProcess::NormalExit && status == 0);
    });
    QObject::connect(&m_process, &QProcess::errorOccurred, &m_process, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(false);
    });
}

void UpdaterProcess::start() {
    m_isAutomatic.set(m_environment.defaults.boolean(automaticCheckKey).value_or(false));
    schedule();
}

void UpdaterProcess::setAutomaticallyChecksForUpdates(bool isAutomatic) {
    if (isAutomatic == m_isAutomatic.value())
        return;
    m_environment.defaults.setBoolean(automaticCheckKey, isAutomatic);
    m_isAutomatic.set(isAutomatic);
    schedule();
}

void UpdaterProcess::check(const QStringList& options) {
    if (m_process.state() != QProcess::NotRunning)
        return;
    m_canCheck.set(false);
    m_process.setArguments(QStringList(QString::fromStdString(m_environment.bundle)) + m_environment.look() + options);
    m_process.start();
}

void UpdaterProcess::ended(bool wasRead) {
    if (wasRead)
        m_environment.defaults.setReal(lastCheckKey, m_environment.clock.wallClock());
    m_canCheck.set(true);
}

void UpdaterProcess::schedule() {
    m_nextCheck.cancel();
    if (!m_isAutomatic.value())
        return;
    // A time in the future comes from a clock that was wrong, and counts as now.
    const Seconds now = m_environment.clock.wallClock();
    const Seconds last = std::min(m_environment.defaults.real(lastCheckKey).value_or(0), now);
    const Seconds wait = std::clamp(last + kBetweenChecks - now, kAfterStart, kBetweenChecks);
    m_nextCheck = m_environment.mainThread.after(wholeNanoseconds(wait), [this] {
        check({QStringLiteral("--scheduled")});
        // The next one in a day, even if this one fails.
        m_nextCheck = m_environment.mainThread.after(wholeNanoseconds(kBetweenChecks), [this] { schedule(); });
    });
}

}  // namespace kinesta
