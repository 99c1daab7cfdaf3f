#include "shell/TestPanel.h"

#include <QDBusMessage>

namespace kinesta::testing {

TestPanel::TestPanel(const QDBusConnection& bus) : m_bus(bus) {
    m_bus.registerObject("/StatusNotifierWatcher", this, QDBusConnection::ExportScriptableSlots);
    for (const char* interface : {"org.kde.StatusNotifierItem", "com.canonical.dbusmenu"})
        m_bus.connect({}, {}, interface, {}, this, SLOT(noteSignal(QDBusMessage)));
    m_bus.registerService("org.kde.StatusNotifierWatcher");
}

TestPanel::~TestPanel() { QDBusConnection::disconnectFromBus(m_bus.name()); }

QDBusPendingCall TestPanel::call(const QString& interface, const QString& method, const QVariantList& arguments) {
    const QString path = interface == "com.canonical.dbusmenu" ? "/MenuBar" : "/StatusNotifierItem";
    auto message = QDBusMessage::createMethodCall(items.value(0), path, interface, method);
    message.setArguments(arguments);
    return m_bus.asyncCall(message);
}

}  // namespace kinesta::testing
