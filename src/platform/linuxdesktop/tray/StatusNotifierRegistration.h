#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>

namespace kinesta {

/// Announces our status notifier to the desktop's watcher, again whenever a watcher appears. Never waits for the bus
/// or for another program. Main thread only.
class StatusNotifierRegistration final : public QObject {
    Q_OBJECT

  public:
    /// `changed` is called with whether a watcher has our item: at the first answer, and then at each change.
    using Changed = std::function<void(bool isRegistered)>;

    /// The item must be exported already.
    StatusNotifierRegistration(QDBusConnection bus, Changed changed);

  private:
    Q_SLOT void watcherChanged(const QString& name, const QString& before, const QString& now);
    Q_SLOT void busLost();
    void announce();
    void settle(bool isRegistered);

    QDBusConnection m_bus;
    Changed m_changed;
    QString m_name;
    /// Of the present watcher: an answer of an earlier one says nothing.
    std::uint64_t m_generation = 0;
};

}  // namespace kinesta
