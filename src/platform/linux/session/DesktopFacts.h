#pragma once

#include <string>

#include "platform/linux/session/MessageBus.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// Whether a Wayland compositor answers at the socket that the environment names.
bool answersWayland();

/// A service on the session bus: whether a program offers it, or would be started for it, and whether it answers.
enum class BusService { absent, silent, answering };

/// What this machine offers to actions now.
struct DesktopFacts {
    /// An X server answers; in a Wayland session that is XWayland, which shows the windows of older programs.
    bool hasX = false;
    bool hasXTest = false;
    /// A window manager that follows EWMH runs on the X server.
    bool hasWindowManager = false;
    /// A Wayland compositor answers.
    bool hasWayland = false;
    /// We may create virtual input devices.
    bool mayUseUinput = false;
    bool hasXdgOpen = false;
    bool hasSessionBus = false;
    BusService notifications = BusService::absent;
    /// The portal that opens addresses and files. Checked only if there is no xdg-open, which is preferred.
    BusService portal = BusService::absent;
    /// The name that the window manager gives itself, and what it does for other programs.
    std::string windowManager{};
    bool closesWindows = true;
    bool movesWindows = true;
    /// It takes requests at a socket of its own, and arranges windows itself.
    bool takesI3Commands = false;

    /// How keys and clicks are sent: as wished; else through an X server with XTest in a session without Wayland; else
    /// through uinput, which is the only way left without any session. Never `automatic`.
    LinuxActionSettings::InputRoute inputRoute(LinuxActionSettings::InputRoute wish) const;

    /// Checks what sending keys and clicks needs. Does not ask the X server: it counts if it answered last time. Other
    /// fields keep their defaults.
    static DesktopFacts probeInput(X11Connection& connection, const std::string& uinputPath);

    /// Checks everything but the window manager. Asks the services, which starts those that do not run yet, as their
    /// first use would. Takes some milliseconds, or some seconds if a service does not answer.
    static DesktopFacts probe(X11Connection& connection, MessageBus& bus, const std::string& uinputPath);
};

}  // namespace kinesta
