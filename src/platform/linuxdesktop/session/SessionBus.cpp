#include "platform/linuxdesktop/session/SessionBus.h"

#include "platform/linux/session/MessageBus.h"

namespace kinesta {

QDBusConnection sessionBus() {
    MessageBus probe;
    return probe.open() != nullptr ? QDBusConnection::sessionBus() : QDBusConnection(QStringLiteral("no session bus"));
}

}  // namespace kinesta
