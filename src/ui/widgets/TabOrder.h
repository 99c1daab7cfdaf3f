#pragma once

#include <QWidget>

namespace kinesta::TabOrder {

/// Has Tab visit the controls in `part` where it stands among its siblings. A part that comes to a window later would
/// be visited last.
void place(QWidget& part);

}  // namespace kinesta::TabOrder
