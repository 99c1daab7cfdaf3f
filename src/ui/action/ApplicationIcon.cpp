#include "ui/action/ApplicationIcon.h"

#include <QDir>
#include <QFileInfo>

#include "feedback/ActionCueSymbol.h"
#include "ui/widgets/SymbolIcon.h"

namespace kinesta {
namespace {

constexpr QSize kProbe(32, 32);

}  // namespace

QIcon applicationIcon(const QString& icon) {
    QIcon found;
    if (QDir::isAbsolutePath(icon)) {
        found = QIcon(icon);
    } else if (!icon.isEmpty()) {
        // Some files name a picture with its ending, which no theme does.
        const QFileInfo file(icon);
        const bool isFile =
            QStringList{QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("xpm")}.contains(file.suffix());
        found = QIcon::fromTheme(isFile ? file.completeBaseName() : icon);
    }
    // A file may be there that cannot be read as a picture.
    if (found.pixmap(kProbe).isNull())
        return SymbolIcon::of(actionCueSymbol(ActionKind::launchApplication));
    return found;
}

}  // namespace kinesta
