#include "platform/linuxdesktop/session/SessionBus.h"

#include <QByteArray>

#include "platform/linux/session/MessageBus.h"

namespace kinesta {

QDBusConnection sessionBus() {
    constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
    if (MessageBus probe; probe.open() != nullptr)
        return QDBusConnection::sessionBus();
    // Qt keeps its first connection for good, even one that failed. So let that one fail at once: Qt's accessibility
    // uses it too, when the first window is shown. Programs that Kinesta starts get the true address.
    const bool isSet = qEnvironmentVariableIsSet(kAddress);
    const QByteArray address = qgetenv(kAddress);
    qputenv(kAddress, "unix:path=/nonexistent");
    QDBusConnection none = QDBusConnection::sessionBus();
    if (isSet)
        qputenv(kAddress, address);
    else
        qunsetenv(kAddress);
    return none;
}

}  // namespace kinesta
