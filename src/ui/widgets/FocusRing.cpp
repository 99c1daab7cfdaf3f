#include "ui/widgets/FocusRing.h"

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

/// Between the shape and its ring.
constexpr int kGap = 2;

}  // namespace

void FocusRing::follow(const QFocusEvent& event) {
    switch (event.reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            m_isShown = event.gotFocus();
            break;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            break;  // the focus comes back as it went
        default:
            m_isShown = false;
    }
}

void FocusRing::paint(QPainter& painter, const QRectF& box, double radius) const {
    if (!m_isShown)
        return;
    const AppTheme& theme = WindowTheme::current();
    const double half = theme.focusRing / 2.0;
    painter.setPen(QPen(asQColor(theme.accent), theme.focusRing));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius - half, radius - half);
}

int FocusRing::room() { return kGap + WindowTheme::current().focusRing; }

}  // namespace kinesta
