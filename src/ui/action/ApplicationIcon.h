#pragma once

#include <QIcon>
#include <QString>

namespace kinesta {

/// The icon of an application by its name in the icon theme or its path, or a drawn one if there is none.
QIcon applicationIcon(const QString& icon);

}  // namespace kinesta
