#include "platform/linuxdesktop/session/ControlService.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/linux/session/ControlNames.h"
#include "platform/linuxdesktop/session/ControlAdaptors.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

QString text(const char* text) { return QString::fromLatin1(text); }

}  // namespace

ControlService::ControlService(QDBusConnection bus, ApplicationControl& control,
                               std::function<void(const std::string&)> tell)
    : m_bus(std::move(bus)), m_control(control), m_tell(std::move(tell)), m_announced(control.state().value()) {
    if (!m_bus.isConnected()) {
        m_tell(translated("No session bus answers: kinesta ctl and a second start of Kinesta cannot reach this one."));
        return;
    }
    m_adaptor = new ControlAdaptor(this, control);
    new ActivationAdaptor(this, m_bus, control);
    // Before the name is requested: who sees the name may call at once.
    m_bus.registerObject(text(ControlNames::kPath), this, QDBusConnection::ExportAdaptors);
    m_bus.connect({}, text("/org/freedesktop/DBus/Local"), text("org.freedesktop.DBus.Local"), text("Disconnected"),
                  this, SLOT(tellOfEnd()));
    m_changes = control.state().observe([this](const ApplicationState& state) { announce(state); });
    requestName();
}

ControlService::~ControlService() {
    m_bus.unregisterObject(text(ControlNames::kPath));
    m_bus.send(QDBusMessage::createMethodCall(text("org.freedesktop.DBus"), text("/org/freedesktop/DBus"),
                                              text("org.freedesktop.DBus"), text("ReleaseName"))
               << text(ControlNames::kService));
}

void ControlService::requestName() {
    // Without waiting for the answer: a bus that hangs must not hold up the start. With a place in the queue, because
    // the bus may not have noticed yet that an earlier application has been killed.
    constexpr uint kQueue = 0;
    const QDBusMessage request =
        QDBusMessage::createMethodCall(text("org.freedesktop.DBus"), text("/org/freedesktop/DBus"),
                                       text("org.freedesktop.DBus"), text("RequestName"))
        << text(ControlNames::kService) << kQueue;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        if (const QDBusPendingReply<uint> reply = *call; reply.isError())
            m_tell(translated(
                "The session bus refuses the name com.orvane.kinesta, so kinesta ctl cannot reach this Kinesta: %1",
                {reply.error().message().toStdString()}));
        call->deleteLater();
    });
}

void ControlService::tellOfEnd() {
    m_tell(translated("The session bus has ended: kinesta ctl and a second start of Kinesta cannot reach this one."));
}

void ControlService::announce(const ApplicationState& state) {
    QVariantMap changed;
    const auto add = [&](const char* name, bool isChanged) {
        if (isChanged)
            changed.insert(text(name), m_adaptor->property(name));
    };
    add("GesturesEnabled", state.isGestureEnabled != m_announced.isGestureEnabled);
    add("Status", state.status != m_announced.status);
    add("StatusText", state.statusText != m_announced.statusText);
    add("WindowVisible", state.isWindowVisible != m_announced.isWindowVisible);
    add("TestActive", state.isTestActive != m_announced.isTestActive);
    add("EnabledRules", state.enabledRules != m_announced.enabledRules);
    add("Tray", state.tray != m_announced.tray);
    m_announced = state;
    QDBusMessage signal = QDBusMessage::createSignal(text(ControlNames::kPath), text("org.freedesktop.DBus.Properties"),
                                                     text("PropertiesChanged"));
    signal << text(ControlNames::kInterface) << changed << QStringList();
    m_bus.send(signal);
}

}  // namespace kinesta
