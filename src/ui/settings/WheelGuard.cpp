#include "ui/settings/WheelGuard.h"

#include <QEvent>

namespace kinesta {

void WheelGuard::install(QWidget& widget) { widget.installEventFilter(new WheelGuard(&widget)); }

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    event->ignore();  // so that it goes to the parent
    return true;
}

}  // namespace kinesta
