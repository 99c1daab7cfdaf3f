#include "ui/action/ApplicationIcon.h"

#include <QDir>

#include "feedback/ActionCueSymbol.h"
#include "ui/widgets/SymbolIcon.h"

namespace kinesta {

QIcon applicationIcon(const QString& icon) {
    QIcon found;
    if (QDir::isAbsolutePath(icon)) {
        found = QIcon(icon);
        if (found.availableSizes().isEmpty())
            found = {};
    } else if (!icon.isEmpty()) {
        // Some files name a picture with its ending, which no theme does.
        QString name = icon;
        for (const char* ending : {".png", ".svg", ".xpm"})
            if (name.endsWith(QLatin1String(ending)))
                name.chop(4);
        found = QIcon::fromTheme(name);
    }
    return found.isNull() ? SymbolIcon::of(actionCueSymbol(ActionKind::launchApplication)) : found;
}

}  // namespace kinesta
