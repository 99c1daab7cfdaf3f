#include "app/ApplicationState.h"

#include <array>

namespace kinesta {

template <>
std::span<const EnumRow<TrayKind>> enumTable() {
    static constexpr std::array kRows{EnumRow{TrayKind::statusNotifier, "statusnotifier", "in the tray"},
                                      EnumRow{TrayKind::xembed, "xembed", "in an X11 tray"},
                                      EnumRow{TrayKind::none, "none", "none: there is no tray"}};
    return kRows;
}

template <>
std::span<const EnumRow<TrackpadContactProviderStatus::Kind>> enumTable() {
    using Kind = TrackpadContactProviderStatus::Kind;
    static constexpr std::array kRows{EnumRow{Kind::unavailable, "unavailable", "Unavailable"},
                                      EnumRow{Kind::stopped, "stopped", "Stopped"},
                                      EnumRow{Kind::listening, "listening", "Listening"}};
    return kRows;
}

template <>
std::span<const EnumRow<ApplicationRequest>> enumTable() {
    using Request = ApplicationRequest;
    static constexpr std::array kRows{
        EnumRow{Request::show, "show", "Show the window"},
        EnumRow{Request::hide, "hide", "Hide the window"},
        EnumRow{Request::toggle, "toggle", "Show the window, or hide it if it is visible"},
        EnumRow{Request::enable, "enable", "Switch gestures on"},
        EnumRow{Request::disable, "disable", "Switch gestures off"},
        EnumRow{Request::reload, "reload", "Read rules and settings again"},
        EnumRow{Request::quit, "quit", "End the application, and return when it has ended"}};
    return kRows;
}

}  // namespace kinesta
