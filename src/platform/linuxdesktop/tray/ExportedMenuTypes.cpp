#include "platform/linuxdesktop/tray/ExportedMenuTypes.h"

#include <QDBusMetaType>

namespace kinesta {

void registerExportedMenuTypes() {
    qDBusRegisterMetaType<ExportedMenuItem>();
    qDBusRegisterMetaType<QList<ExportedMenuItem>>();
    qDBusRegisterMetaType<ExportedMenuDefaults>();
    qDBusRegisterMetaType<QList<ExportedMenuDefaults>>();
    qDBusRegisterMetaType<ExportedMenuLayout>();
    qDBusRegisterMetaType<ExportedMenuEvent>();
    qDBusRegisterMetaType<QList<ExportedMenuEvent>>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuItem& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuItem& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuDefaults& defaults) {
    argument.beginStructure();
    argument << defaults.id << defaults.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuDefaults& defaults) {
    argument.beginStructure();
    argument >> defaults.id >> defaults.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuLayout& layout) {
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const ExportedMenuItem& child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(ExportedMenuLayout{child.id, child.properties, {}}));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuLayout& layout) {
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    layout.children.clear();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        const auto below = qdbus_cast<ExportedMenuLayout>(child.variant());
        layout.children.append({below.id, below.properties});
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const ExportedMenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.type << event.data << event.time;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ExportedMenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.type >> event.data >> event.time;
    argument.endStructure();
    return argument;
}

}  // namespace kinesta
