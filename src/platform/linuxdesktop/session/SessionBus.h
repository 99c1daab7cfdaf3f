#pragma once

#include <QDBusConnection>

namespace kinesta {

/// Qt's connection to the session bus; one that is not connected if no bus answers at once. Qt itself would wait half a
/// minute for a bus that hangs, or start a bus that no other program of the session knows.
QDBusConnection sessionBus();

}  // namespace kinesta
