#pragma once

#include <QWidget>
#include <initializer_list>

namespace kinesta {

/// A field with what belongs to it below.
QWidget* fieldColumn(std::initializer_list<QWidget*> parts);

}  // namespace kinesta
