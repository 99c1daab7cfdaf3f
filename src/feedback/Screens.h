#pragma once

#include <optional>
#include <vector>

#include "support/Rectangle.h"

namespace kinesta {

/// One monitor. Logical points, x to the right, y upward from the lower left corner of the main screen.
struct Screen {
    Rectangle frame;
    /// Without panels, docks and the menu bar.
    Rectangle visibleFrame;
};

/// The port to the monitors and the pointer. Main thread only.
class Screens {
  public:
    virtual ~Screens() = default;

    /// In the system's order.
    virtual std::vector<Screen> screens() const = 0;
    virtual std::optional<Screen> mainScreen() const = 0;
    virtual std::optional<Point> pointerLocation() const = 0;
};

}  // namespace kinesta
