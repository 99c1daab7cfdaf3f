#include "ui/widgets/FocusRing.h"

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

/// Between the shape and its ring.
constexpr int kGap = 2;

}  // namespace

void FocusRing::follow(const QFocusEvent& event) {
    const Qt::FocusReason reason = event.reason();
    if (event.lostFocus())
        m_isShown = false;
    else if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
        m_isShown = true;
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
