#pragma once

#include "app/AppTheme.h"

namespace kinesta {

/// How our widgets look at this moment. Widgets ask when they paint or begin to move.
class WindowTheme {
  public:
    /// The light theme at first.
    static const AppTheme& current();
    static bool reducesMotion();
    /// Repaints every widget.
    static void set(const AppTheme& theme);
    static void setReducesMotion(bool isReduced);
};

}  // namespace kinesta
