#pragma once

#include <functional>

#include "feedback/ActionCueContent.h"
#include "support/Point.h"
#include "support/Seconds.h"

namespace kinesta {

/// The port to the overlay window of the cue, which takes no focus and no clicks and stands above all other windows,
/// full-screen ones included. Made at its first use. Main thread only.
class ActionCuePanel {
  public:
    /// Logical points.
    static constexpr double width = 220;
    static constexpr double height = 44;

    virtual ~ActionCuePanel() = default;

    virtual void setContent(const ActionCueContent& content) = 0;
    /// 0…1; 1 is a solid ground.
    virtual void setBackgroundOpacity(double opacity) = 0;
    /// Places the lower left corner, in the coordinates of Screens.
    virtual void setOrigin(Point origin) = 0;

    /// Whether it is on the screen, however transparent.
    virtual bool isVisible() const = 0;
    /// 0…1 of the whole panel, also in the middle of an animation.
    virtual double alpha() const = 0;
    /// Ends an animation without calling its `done`.
    virtual void setAlpha(double alpha) = 0;
    /// Shows it above all windows without activating the application.
    virtual void orderFront() = 0;
    virtual void orderOut() = 0;
    /// Changes alpha from its present value, then calls `done`. A later animation or setAlpha() replaces it, and its
    /// `done` is not called.
    virtual void animateAlpha(double alpha, Seconds duration, std::function<void()> done) = 0;
};

}  // namespace kinesta
