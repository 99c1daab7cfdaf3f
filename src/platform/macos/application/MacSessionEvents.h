#pragma once

#include <memory>

#include "app/ApplicationEvents.h"

namespace kinesta {

/// What the machine and the system do to the application: waking up, activation, hiding, and windows that come to the
/// front or close, also those that are not of Qt. Events that Qt's window reports too do no harm twice. Main thread
/// only.
///
/// `reopened` comes from the main: only the application's delegate hears that the person has started the application
/// again, and that delegate belongs to Qt. Qt passes it on as QGuiApplication::applicationStateChanged with
/// Qt::ApplicationActive, even if the application is active already (from memory).
class MacSessionEvents final {
  public:
    /// `events` must outlive this.
    explicit MacSessionEvents(const ApplicationEvents& events);
    ~MacSessionEvents();
    MacSessionEvents(const MacSessionEvents&) = delete;
    MacSessionEvents& operator=(const MacSessionEvents&) = delete;

  private:
    struct Observations;

    std::shared_ptr<Observations> m_observations;
};

}  // namespace kinesta
