#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

namespace kinesta {

/// A picture as status notifiers send it: (iiay), 4 bytes a pixel: alpha, red, green, blue.
struct StatusPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};

/// (sa(iiay)ss)
struct StatusToolTip {
    QString iconName;
    QList<StatusPixmap> icon;
    QString title;
    QString description;
};

/// Makes them known to Qt's D-Bus. Before they are sent or received.
void registerStatusNotifierTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const StatusPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const StatusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusToolTip& toolTip);

}  // namespace kinesta

Q_DECLARE_METATYPE(kinesta::StatusPixmap)
Q_DECLARE_METATYPE(kinesta::StatusToolTip)
