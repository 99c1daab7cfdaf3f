#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QStringList>

namespace kinesta::testing {

/// A panel on a connection of its own: the watcher, which notes the items, and a host, which notes their signals.
class TestPanel final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

  public:
    explicit TestPanel(const QDBusConnection& bus);
    ~TestPanel() override;

    /// Calls the item, or its menu.
    QDBusPendingCall call(const QString& interface, const QString& method, const QVariantList& arguments);

    QStringList items;
    QStringList signalNames;

  public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& item) { items.append(item); }
    void noteSignal(const QDBusMessage& message) { signalNames.append(message.member()); }

  private:
    QDBusConnection m_bus;
};

}  // namespace kinesta::testing
