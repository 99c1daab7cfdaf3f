#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QVariant>

#include "app/AppTheme.h"
#include "feedback/DisplayPreferences.h"
#include "support/Observers.h"

namespace kinesta {

/// What the person asked the desktop for, from the settings portal. Asked for at once and followed; until the portal
/// answers, and without one, nothing is asked for. Never waits. Main thread only.
class DesktopSettings final : public QObject, public DisplayPreferences {
    Q_OBJECT

  public:
    explicit DesktopSettings(QDBusConnection bus);

    /// Nothing if either will do.
    std::optional<NamedAppearance> appearance() const;
    ThemeContrast contrast() const;
    /// 1 is the usual size of text.
    double textScale() const;
    bool reducesTransparency() const override;
    bool reducesMotion() const override;

    /// Calls `observer` after each change.
    [[nodiscard]] Subscription observe(std::function<void()> observer) { return m_observers.add(std::move(observer)); }

  private:
    // A slot of a signal on the bus must be known by name.
    Q_SLOT void takeChange(const QDBusMessage& signal);
    void take(const QString& group, const QString& key, const QDBusVariant& value);
    void askForAll();
    void ask(const QString& group, const QString& key);
    QVariant value(const char* group, const char* key) const;

    QDBusConnection m_bus;
    QMap<QString, QVariant> m_values;
    Observers<> m_observers;
};

}  // namespace kinesta
