#pragma once

#include <systemd/sd-bus.h>

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "app/ApplicationEvents.h"

namespace kinesta {

/// What the machine and the session do to the application: it posts when the machine has woken from sleep, and keeps
/// session managers from starting a second application at the next login. Needs the QGuiApplication. Main thread only.
class SessionEvents final : public QObject {
  public:
    /// `events` must outlive this. Never waits for the system bus; without one nothing is posted.
    explicit SessionEvents(const ApplicationEvents& events);

  private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };

    static int prepareForSleep(sd_bus_message* signal, void* self, sd_bus_error* error);
    void process();

    const ApplicationEvents& m_events;
    std::unique_ptr<sd_bus, Close> m_bus;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
};

}  // namespace kinesta
