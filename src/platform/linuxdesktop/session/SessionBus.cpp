#include "platform/linuxdesktop/session/SessionBus.h"

#include <QDBusConnection>

#include "platform/linux/session/MessageBus.h"

namespace kinesta {
namespace {

const char* const kAddress = "DBUS_SESSION_BUS_ADDRESS";

}  // namespace

SessionBusCheck::SessionBusCheck() : m_hidesBus(MessageBus().open() == nullptr) {
    if (!m_hidesBus)
        return;
    if (qEnvironmentVariableIsSet(kAddress))
        m_address = qgetenv(kAddress);
    qputenv(kAddress, "unix:path=/nonexistent");
}

SessionBusCheck::~SessionBusCheck() {
    if (!m_hidesBus)
        return;
    // Qt keeps its first connection for good, even one that failed, and its accessibility uses it, too.
    QDBusConnection::sessionBus();
    if (m_address)
        qputenv(kAddress, *m_address);
    else
        qunsetenv(kAddress);
}

}  // namespace kinesta
