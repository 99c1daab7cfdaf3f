#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariant>
#include <utility>

#include "app/ApplicationControl.h"

namespace kinesta {

// The names below are those of the bus.

/// com.orvane.kinesta
class ControlAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.orvane.kinesta")
    Q_PROPERTY(bool GesturesEnabled READ gesturesEnabled)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QString StatusText READ statusText)
    Q_PROPERTY(bool WindowVisible READ windowVisible)
    Q_PROPERTY(bool TestActive READ testActive)
    Q_PROPERTY(uint EnabledRules READ enabledRules)
    Q_PROPERTY(QString Tray READ tray)

  public:
    ControlAdaptor(QObject* parent, ApplicationControl& control) : QDBusAbstractAdaptor(parent), m_control(control) {}

    bool gesturesEnabled() const { return state().isGestureEnabled; }
    QString status() const;
    QString statusText() const { return QString::fromStdString(state().statusText); }
    bool windowVisible() const { return state().isWindowVisible; }
    bool testActive() const { return state().isTestActive; }
    uint enabledRules() const { return static_cast<uint>(state().enabledRules); }
    QString tray() const;

    Q_SLOT void Show() { m_control.perform(ApplicationRequest::show); }
    Q_SLOT void Hide() { m_control.perform(ApplicationRequest::hide); }
    Q_SLOT void Toggle() { m_control.perform(ApplicationRequest::toggle); }
    Q_SLOT void Reload() { m_control.perform(ApplicationRequest::reload); }
    Q_SLOT void Quit() { m_control.perform(ApplicationRequest::quit); }
    Q_SLOT void SetGesturesEnabled(bool enabled) {
        m_control.perform(enabled ? ApplicationRequest::enable : ApplicationRequest::disable);
    }

  private:
    const ApplicationState& state() const { return m_control.state().value(); }

    ApplicationControl& m_control;
};

/// org.freedesktop.Application, by which desktops start and activate applications.
class ActivationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    ActivationAdaptor(QObject* parent, QDBusConnection bus, ApplicationControl& control)
        : QDBusAbstractAdaptor(parent), m_bus(std::move(bus)), m_control(control) {}

    Q_SLOT void Activate(const QVariantMap& /*platformData*/) { m_control.perform(ApplicationRequest::show); }
    /// There are no documents to open.
    Q_SLOT void Open(const QStringList& /*addresses*/, const QVariantMap& platformData) { Activate(platformData); }
    /// The actions of the desktop file are named as the requests.
    Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameters, const QVariantMap& platformData,
                               const QDBusMessage& call);

  private:
    QDBusConnection m_bus;
    ApplicationControl& m_control;
};

}  // namespace kinesta
