#pragma once

#include <cstddef>
#include <string>

#include "input/TrackpadContactProviding.h"
#include "support/EnumTable.h"

namespace kinesta {

/// How the status item is shown.
enum class TrayKind { statusNotifier, xembed, none };

/// What other processes can read about the running application.
struct ApplicationState {
    bool isGestureEnabled = false;
    TrackpadContactProviderStatus::Kind status = TrackpadContactProviderStatus::Kind::stopped;
    /// The status line of the menu.
    std::string statusText;
    bool isWindowVisible = false;
    bool isTestActive = false;
    std::size_t enabledRules = 0;
    TrayKind tray = TrayKind::none;

    friend bool operator==(const ApplicationState&, const ApplicationState&) = default;
};

/// What other processes can ask of the running application.
enum class ApplicationRequest { show, hide, toggle, enable, disable, reload, quit };

// The raw values are the words of `kinesta ctl` and of the bus. The titles describe them in the help.
template <>
std::span<const EnumRow<TrayKind>> enumTable();
template <>
std::span<const EnumRow<TrackpadContactProviderStatus::Kind>> enumTable();
template <>
std::span<const EnumRow<ApplicationRequest>> enumTable();

}  // namespace kinesta
