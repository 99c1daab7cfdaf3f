#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace kinesta {

/// An item of an exported menu: (ia{sv}).
struct ExportedMenuItem {
    int id = 0;
    QVariantMap properties;
};

/// An item and the names of its properties that have their default value now: (ias).
struct ExportedMenuDefaults {
    int id = 0;
    QStringList properties;
};

/// An item with those below it: (ia{sv}av). Ours have none below them.
struct ExportedMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<ExportedMenuItem> children;
};

/// What a panel says has happened to an item: (isvu).
struct ExportedMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    uint time = 0;
};

/// Makes them known to Qt's D-Bus. Before they are sent or received.
void registerExportedMenuTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuItem& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuItem& item);
QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuDefaults& defaults);
const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuDefaults& defaults);
QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuEvent& event);

}  // namespace kinesta

Q_DECLARE_METATYPE(kinesta::ExportedMenuItem)
Q_DECLARE_METATYPE(kinesta::ExportedMenuDefaults)
Q_DECLARE_METATYPE(kinesta::ExportedMenuLayout)
Q_DECLARE_METATYPE(kinesta::ExportedMenuEvent)
