#pragma once

#include "support/UserDefaults.h"

namespace kinesta {

/// What a person can choose about actions that exists on Linux alone. A value that is missing or unknown is the first
/// of its kind.
struct LinuxActionSettings {
    /// The key that ⌘ stands for: Ctrl, so that Copy, New Tab and their like do what they say, or the Super key.
    enum class CommandKey { control, super };

    /// The way keys and clicks take to the desktop: what suits the session, always the X server, or always a device
    /// of our own in the kernel.
    enum class InputRoute { automatic, xServer, uinput };

    /// "control" or "super".
    static constexpr std::string_view kCommandKey = "linux.commandKey.v1";
    /// "automatic", "x11" or "uinput".
    static constexpr std::string_view kInputRoute = "linux.inputRoute.v1";

    CommandKey commandKey = CommandKey::control;
    InputRoute inputRoute = InputRoute::automatic;

    static LinuxActionSettings read(const UserDefaults& defaults);
};

}  // namespace kinesta
