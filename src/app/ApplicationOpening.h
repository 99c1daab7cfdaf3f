#pragma once

namespace kinesta {

/// Whether a start of the application shows the window.
enum class ApplicationOpening { withWindow, inBackground };

}  // namespace kinesta
