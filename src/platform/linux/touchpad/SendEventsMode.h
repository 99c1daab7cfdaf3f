#pragma once

namespace kinesta {

/// What desktops let a person choose for a touchpad.
enum class SendEventsMode { enabled, disabled, disabledWithExternalMouse };

}  // namespace kinesta
