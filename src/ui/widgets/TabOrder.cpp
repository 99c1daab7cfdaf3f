#include "ui/widgets/TabOrder.h"

namespace kinesta::TabOrder {
namespace {

/// Also what Tab passes at the moment, such as tiles that are not chosen.
bool isStop(const QWidget& widget) { return widget.focusPolicy() != Qt::NoFocus && widget.focusProxy() == nullptr; }

/// In the order of stacking, which is that of reading.
QWidgetList stopsIn(QWidget& part) {
    QWidgetList stops;
    if (isStop(part))
        stops.push_back(&part);
    const auto children = part.findChildren<QWidget*>();
    for (QWidget* child : children)
        if (isStop(*child) && child->window() == part.window())  // lists that drop down are windows
            stops.push_back(child);
    return stops;
}

QWidget* lastStopBefore(const QWidget& part) {
    for (const QWidget* below = &part; !below->isWindow(); below = below->parentWidget()) {
        const QObjectList& siblings = below->parentWidget()->children();
        for (auto i = siblings.indexOf(below) - 1; i >= 0; --i) {
            auto* before = qobject_cast<QWidget*>(siblings[i]);
            if (before == nullptr || before->isWindow())
                continue;
            if (const QWidgetList stops = stopsIn(*before); !stops.isEmpty())
                return stops.back();
        }
    }
    return nullptr;
}

}  // namespace

void place(QWidget& part) {
    QWidget* before = lastStopBefore(part);
    const QWidgetList stops = stopsIn(part);
    for (QWidget* stop : stops) {
        if (before != nullptr)
            QWidget::setTabOrder(before, stop);
        before = stop;
    }
}

}  // namespace kinesta::TabOrder
