#include "platform/linuxdesktop/tray/StatusNotifierRegistration.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QMetaObject>
#include <QStringList>
#include <QTimer>
#include <chrono>
#include <limits>
#include <utility>

namespace kinesta {
namespace {

constexpr auto kBus = QLatin1StringView("org.freedesktop.DBus");
constexpr auto kBusPath = QLatin1StringView("/org/freedesktop/DBus");
constexpr auto kWatcher = QLatin1StringView("org.kde.StatusNotifierWatcher");
constexpr auto kWatcherPath = QLatin1StringView("/StatusNotifierWatcher");

/// How long an icon may be missing while a bus or a watcher does not answer.
constexpr auto kPatience = std::chrono::seconds(2);
/// For libdbus: wait for the answer as long as it takes.
constexpr int kNoTimeout = std::numeric_limits<int>::max();

QDBusMessage call(QLatin1StringView service, QLatin1StringView path, const char* method,
                  const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, QString::fromLatin1(method));
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

}  // namespace

StatusNotifierRegistration::StatusNotifierRegistration(QDBusConnection bus, Changed changed)
    : m_bus(std::move(bus)),
      m_changed(std::move(changed)),
      m_name(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid())) {
    if (!m_bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { busLost(); }, Qt::QueuedConnection);
        return;
    }
    m_bus.connect(kBus, kBusPath, kBus, QStringLiteral("NameOwnerChanged"), {kWatcher}, QStringLiteral("sss"), this,
                  SLOT(watcherChanged(QString, QString, QString)));
    m_bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                  QStringLiteral("Disconnected"), this, SLOT(busLost()));
    // Not QDBusConnection::registerService(), which waits for the answer. The bus handles calls in their order, so the
    // name is ours when the watcher hears of it. 4: do not queue for it.
    m_bus.asyncCall(call(kBus, kBusPath, "RequestName", {m_name, 4U}));
    announce();
}

void StatusNotifierRegistration::watcherChanged(const QString& /*name*/, const QString& /*before*/,
                                                const QString& now) {
    if (now.isEmpty())
        settle(false);
    else
        announce();
}

void StatusNotifierRegistration::busLost() { settle(false); }

/// Without a watcher the bus answers with an error at once.
void StatusNotifierRegistration::announce() {
    const auto isCurrent = [this, generation = ++m_generation] { return generation == m_generation; };
    const auto message = call(kWatcher, kWatcherPath, "RegisterStatusNotifierItem", {m_name});
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kNoTimeout), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, isCurrent] {
        answer->deleteLater();
        if (isCurrent())
            settle(!answer->isError());
    });
    QTimer::singleShot(kPatience, this, [this, isCurrent] {
        if (isCurrent())
            m_changed(false);
    });
}

void StatusNotifierRegistration::settle(bool isRegistered) {
    ++m_generation;
    m_changed(isRegistered);
}

}  // namespace kinesta
