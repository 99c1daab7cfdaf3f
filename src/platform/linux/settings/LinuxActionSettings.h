#pragma once

#include <vector>

#include "app/PlatformSettings.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Settings of actions that exist only on Linux. A missing or unknown value counts as the first case.
struct LinuxActionSettings {
    /// The key for ⌘: Ctrl, with which Copy and New Tab work in Linux applications, or Super.
    enum class CommandKey { control, super };

    /// How keys and clicks are posted: as the session requires, always through the X server, or always through a
    /// virtual kernel device.
    enum class InputRoute { automatic, xServer, uinput };

    /// "control" or "super".
    static constexpr std::string_view kCommandKey = "linux.commandKey.v1";
    /// "automatic", "x11" or "uinput".
    static constexpr std::string_view kInputRoute = "linux.inputRoute.v1";

    CommandKey commandKey = CommandKey::control;
    InputRoute inputRoute = InputRoute::automatic;

    static LinuxActionSettings read(const UserDefaults& defaults);

    /// The same, described for the person.
    static std::vector<PlatformChoice> choices();
};

}  // namespace kinesta
