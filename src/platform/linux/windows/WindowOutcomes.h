#pragma once

#include <string>
#include <vector>

#include "platform/linux/windows/AccessibilityBus.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta {

/// Tells what came of an action on windows: for a process that says so to a person. Main thread only.
class WindowOutcomes {
  public:
    enum class Outcome {
        /// Nobody was asked for anything.
        nothingAsked,
        /// The window manager was asked, and left the window as it was.
        ignored,
        /// It was asked and something may still come of it: a window that asks the person before it closes, or that
        /// went elsewhere than it was told to.
        asked,
        done,
    };
    enum class Kind { close, tile, untile };

    WindowOutcomes(EwmhDesktop& desktop, AccessibilityBus& programs) : m_desktop(desktop), m_programs(programs) {}

    /// Forgets what was asked for until now, and listens from now on.
    void begin();

    /// What came of all that was asked for since begin(). Waits for it at most `patience` seconds.
    Outcome settle(Seconds patience);

    /// Why nothing was asked for, as one sentence, from how the desktop is now.
    std::string obstacle(Kind kind);

  private:
    Outcome outcomeNow();

    EwmhDesktop& m_desktop;
    AccessibilityBus& m_programs;
    std::vector<EwmhRequest> m_requests;
};

}  // namespace kinesta
