#include "ui/action/FieldColumn.h"

#include <QVBoxLayout>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 6;

}  // namespace

QWidget* fieldColumn(std::initializer_list<QWidget*> parts) {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Unit::of(kGap));
    for (QWidget* part : parts)
        layout->addWidget(part);
    return column;
}

}  // namespace kinesta
