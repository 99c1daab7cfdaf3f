#include "platform/linuxdesktop/session/SessionEvents.h"

#include <poll.h>

#include <QGuiApplication>
#include <QSessionManager>

namespace kinesta {

SessionEvents::SessionEvents(const ApplicationEvents& events) : m_events(events) {
    // What starts at login is the person's choice, in the settings.
    connect(
        qGuiApp, &QGuiApplication::saveStateRequest, this,
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); }, Qt::DirectConnection);

    sd_bus* bus = nullptr;
    if (sd_bus_open_system(&bus) < 0)
        return;
    m_bus.reset(bus);
    if (sd_bus_match_signal_async(bus, nullptr, "org.freedesktop.login1", "/org/freedesktop/login1",
                                  "org.freedesktop.login1.Manager", "PrepareForSleep", &SessionEvents::prepareForSleep,
                                  nullptr, this) < 0)
        return;
    const int descriptor = sd_bus_get_fd(bus);
    m_readable = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Write);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &SessionEvents::process);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &SessionEvents::process);
    process();
}

void SessionEvents::process() {
    int handled = 0;
    while ((handled = sd_bus_process(m_bus.get(), nullptr)) > 0) {
    }
    const int wanted = handled < 0 ? 0 : sd_bus_get_events(m_bus.get());
    // Neither after an error, as when the bus has ended.
    m_readable->setEnabled(wanted > 0 && (wanted & POLLIN) != 0);
    m_writable->setEnabled(wanted > 0 && (wanted & POLLOUT) != 0);
}

int SessionEvents::prepareForSleep(sd_bus_message* signal, void* self, sd_bus_error* /*error*/) {
    int isGoingToSleep = 1;
    if (sd_bus_message_read(signal, "b", &isGoingToSleep) > 0 && isGoingToSleep == 0)
        static_cast<SessionEvents*>(self)->m_events.post(ApplicationEvent::didWake);
    return 0;
}

}  // namespace kinesta
