#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>
#include <functional>
#include <optional>

#include "app/StatusMenu.h"
#include "platform/linuxdesktop/tray/ExportedMenuTypes.h"

namespace kinesta {

/// The menu that panels show by themselves: com.canonical.dbusmenu at kPath. Main thread only.
///
/// The items have numbers from m_first upward; another menu gets other numbers, so that a click on an item that a panel
/// still shows never chooses another one.
class ExportedMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString TextDirection READ textDirection SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT SCRIPTABLE true)

  public:
    static constexpr const char* kPath = "/MenuBar";

    /// `chosen` is called after the panel has its answer.
    using Chosen = std::function<void(StatusMenuCommand)>;

    ExportedMenu(QDBusConnection bus, Chosen chosen);
    ~ExportedMenu() override;

    void setMenu(const StatusMenu& menu);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

    // Values beyond the first go to the last parameter.
    Q_SLOT Q_SCRIPTABLE uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                                       kinesta::ExportedMenuLayout& layout);
    Q_SLOT Q_SCRIPTABLE QList<kinesta::ExportedMenuItem> GetGroupProperties(const QList<int>& ids,
                                                                            const QStringList& propertyNames);
    Q_SLOT Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SLOT Q_SCRIPTABLE void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    Q_SLOT Q_SCRIPTABLE QList<int> EventGroup(const QList<kinesta::ExportedMenuEvent>& events);
    Q_SLOT Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SLOT Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

  Q_SIGNALS:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<kinesta::ExportedMenuItem>& updatedProps,
                                             const QList<kinesta::ExportedMenuDefaults>& removedProps);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

  private:
    int idAt(std::size_t index) const { return m_first + static_cast<int>(index); }
    const StatusMenuItem* find(int id) const;
    /// Nothing for an unknown id.
    std::optional<QVariantMap> properties(int id, const QStringList& names) const;
    QList<int> unknown(const QList<int>& ids) const;
    bool handle(int id, const QString& event);
    void refuse(const QList<int>& ids);

    QDBusConnection m_bus;
    Chosen m_chosen;
    StatusMenu m_menu;
    int m_first = 1;
    uint m_revision = 1;
};

}  // namespace kinesta
