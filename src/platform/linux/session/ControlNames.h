#pragma once

namespace kinesta {

/// What the application is called on the session bus. Its desktop file has the same name, so that desktops start it
/// over the bus.
struct ControlNames {
    static constexpr const char* kService = "com.orvane.kinesta";
    static constexpr const char* kPath = "/com/orvane/kinesta";
    static constexpr const char* kInterface = "com.orvane.kinesta";
};

}  // namespace kinesta
