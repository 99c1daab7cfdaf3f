#pragma once

#include "support/Picture.h"

namespace kinesta::TrayIcon {

/// A trackpad with three fingers, or one that is struck through. 23 × 18, in the colour of the bar's own labels.
Picture image(bool isEnabled);

}  // namespace kinesta::TrayIcon
