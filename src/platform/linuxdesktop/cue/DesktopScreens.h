#pragma once

#include <functional>
#include <vector>

#include "feedback/Screens.h"
#include "platform/linux/windows/EwmhSnapshot.h"

class QScreen;

namespace kinesta {

/// The monitors in Qt's logical pixels, with work areas from the window manager: with two monitors, Qt leaves out a
/// dock at the inner edge of either.
class DesktopScreens final : public Screens {
  public:
    /// Gives the monitors with their work areas, in pixels; none if they are not known.
    using Monitors = std::function<std::vector<EwmhMonitor>()>;

    explicit DesktopScreens(Monitors monitors);

    std::vector<Screen> screens() const override;
    std::optional<Screen> mainScreen() const override;
    std::optional<Point> pointerLocation() const override;

  private:
    Monitors m_monitors;
};

}  // namespace kinesta
