#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <string>

#include "app/ApplicationControl.h"

namespace kinesta {

/// The running application on the session bus: com.orvane.kinesta for `kinesta ctl`, org.freedesktop.Application for
/// the desktop. Main thread only.
class ControlService final : public QObject {
    Q_OBJECT
  public:
    /// `tell` receives why other processes cannot reach the application, as one sentence. `control` must outlive this.
    ControlService(QDBusConnection bus, ApplicationControl& control, std::function<void(const std::string&)> tell);
    ~ControlService() override;

  private:
    void requestName();
    void announce(const ApplicationState& state);
    Q_SLOT void tellOfEnd();

    QDBusConnection m_bus;
    ApplicationControl& m_control;
    std::function<void(const std::string&)> m_tell;
    QObject* m_adaptor = nullptr;  // owned as a child
    ApplicationState m_announced;
    Subscription m_changes;
};

}  // namespace kinesta
