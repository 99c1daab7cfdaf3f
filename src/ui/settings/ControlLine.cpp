#include "ui/settings/ControlLine.h"

#include <QEvent>
#include <QHBoxLayout>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 12;

}  // namespace

ControlLine::ControlLine(std::initializer_list<QWidget*> controls) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Unit::of(kGap));
    for (QWidget* control : controls)
        line->addWidget(control, 0, Qt::AlignVCenter);
}

void ControlLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layout()->setSpacing(Unit::of(kGap));
}

}  // namespace kinesta
