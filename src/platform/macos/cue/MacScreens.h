#pragma once

#include "feedback/Screens.h"

namespace kinesta {

/// The displays. AppKit's coordinates are those of the port.
class MacScreens final : public Screens {
  public:
    std::vector<Screen> screens() const override;
    std::optional<Screen> mainScreen() const override;
    std::optional<Point> pointerLocation() const override;
};

}  // namespace kinesta
