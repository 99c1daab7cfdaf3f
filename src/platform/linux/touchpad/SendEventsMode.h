#pragma once

namespace kinesta {

/// What desktops let the user choose for a touchpad.
enum class SendEventsMode { enabled, disabled, disabledWithExternalMouse };

}  // namespace kinesta
