#include "platform/linuxdesktop/appearance/IconFolders.h"

#include <QDir>
#include <QIcon>
#include <QStandardPaths>

namespace kinesta {

void useIconFolders() {
    QStringList themes = QIcon::themeSearchPaths();
    QStringList pictures = QIcon::fallbackSearchPaths();
    themes += QDir::home().filePath(QStringLiteral(".icons"));
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& folder : folders) {
        themes += folder + QStringLiteral("/icons");
        pictures += folder + QStringLiteral("/pixmaps");
    }
    QIcon::setThemeSearchPaths(themes);
    QIcon::setFallbackSearchPaths(pictures);
    // Applications put their icons into this theme; those of the desktop's own programs are in its own.
    QIcon::setThemeName(QStringLiteral("hicolor"));
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));
}

}  // namespace kinesta
