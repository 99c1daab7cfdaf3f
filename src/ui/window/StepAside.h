#pragma once

#include <QWidget>
#include <functional>

namespace kinesta {

/// Hides the window, runs `act` once another program has the focus or after a moment, and shows the window again
/// without taking the focus from what came up.
void stepAside(QWidget& window, std::function<void()> act);

}  // namespace kinesta
