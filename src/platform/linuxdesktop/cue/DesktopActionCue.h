#pragma once

#include <memory>

#include "feedback/ActionCuePanel.h"

namespace kinesta {

/// The panel that this desktop can show: a window above all others, or a notification where no program may place one.
std::unique_ptr<ActionCuePanel> makeActionCuePanel();

/// While it lives, a QApplication that is made uses the X server of a Wayland session: through Wayland itself no
/// program may place a window. Has no effect where there is none, or if the person has chosen a platform.
class XWaylandPreference {
  public:
    XWaylandPreference();
    /// Programs that we start later must not inherit the choice.
    ~XWaylandPreference();
    XWaylandPreference(const XWaylandPreference&) = delete;
    XWaylandPreference& operator=(const XWaylandPreference&) = delete;

  private:
    bool m_isChosen;
};

}  // namespace kinesta
