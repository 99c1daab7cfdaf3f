#include "app/ApplicationState.h"

#include <array>

namespace kinesta {

template <>
std::span<const EnumRow<TrayKind>> enumTable() {
    static constexpr std::array<EnumRow<TrayKind>, 3> kRows{{
        {TrayKind::statusNotifier, "statusnotifier", "in the tray"},
        {TrayKind::xembed, "xembed", "in an X11 tray"},
        {TrayKind::none, "none", "none: there is no tray"},
    }};
    return kRows;
}

template <>
std::span<const EnumRow<TrackpadContactProviderStatus::Kind>> enumTable() {
    using Kind = TrackpadContactProviderStatus::Kind;
    static constexpr std::array<EnumRow<Kind>, 3> kRows{{
        {Kind::unavailable, "unavailable", "Unavailable"},
        {Kind::stopped, "stopped", "Stopped"},
        {Kind::listening, "listening", "Listening"},
    }};
    return kRows;
}

template <>
std::span<const EnumRow<ApplicationRequest>> enumTable() {
    using Request = ApplicationRequest;
    static constexpr std::array<EnumRow<Request>, 7> kRows{{
        {Request::show, "show", "Show the window"},
        {Request::hide, "hide", "Hide the window"},
        {Request::toggle, "toggle", "Show the window, or hide it if it is visible"},
        {Request::enable, "enable", "Switch gestures on"},
        {Request::disable, "disable", "Switch gestures off"},
        {Request::reload, "reload", "Read rules and settings again"},
        {Request::quit, "quit", "End the application, and return when it has ended"},
    }};
    return kRows;
}

}  // namespace kinesta
