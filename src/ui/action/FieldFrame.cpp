#include "ui/action/FieldFrame.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/AccessibleParts.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kRadius = 8;
/// Room for the edge of a field that has the focus.
constexpr int kEdge = 2;

}  // namespace

FieldFrame::FieldFrame(QWidget* field, QWidget* parent) : QWidget(parent), m_field(field) {
    AccessibleParts::install();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    layout->addWidget(field);
    field->installEventFilter(this);
}

bool FieldFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

void FieldFrame::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    const double width = m_field->hasFocus() ? theme.focusRing : 1;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(asQColor(m_field->hasFocus() ? theme.accent : theme.line), width));
    painter.setBrush(asQColor(theme.surface));
    const QRectF box = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.drawRoundedRect(box, Unit::of(kRadius) - width / 2, Unit::of(kRadius) - width / 2);
}

}  // namespace kinesta
