#pragma once

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta gestures`: every gesture that a rule can be bound to.
ExitStatus listGestures(const Console& console, OutputForm form);

/// `kinesta actions`: every kind of action.
ExitStatus listActions(const Console& console, OutputForm form);

/// `kinesta shortcuts`: the shortcut presets.
ExitStatus listShortcuts(const Console& console, OutputForm form);

}  // namespace kinesta
