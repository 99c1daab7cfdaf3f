#include "platform/linuxdesktop/tray/StatusNotifierTypes.h"

#include <QDBusMetaType>

namespace kinesta {

void registerStatusNotifierTypes() {
    qDBusRegisterMetaType<StatusPixmap>();
    qDBusRegisterMetaType<QList<StatusPixmap>>();
    qDBusRegisterMetaType<StatusToolTip>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const StatusPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, StatusPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const StatusToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.description;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, StatusToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.description;
    argument.endStructure();
    return argument;
}

}  // namespace kinesta
