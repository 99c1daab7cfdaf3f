#pragma once

#include <string>

#include "platform/linux/session/MessageBus.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// Whether a Wayland compositor answers, where the environment says.
bool answersWayland();

/// A service of the session bus: whether a program has it, or would be started for it, and whether it answers.
enum class BusService { absent, silent, answering };

/// What is there on this machine now, as far as actions need it.
struct DesktopFacts {
    /// An X server answers; in a Wayland session that is XWayland, which shows the windows of older programs.
    bool hasX = false;
    bool hasXTest = false;
    /// A window manager on the X server that follows the desktop standard (EWMH).
    bool hasWindowManager = false;
    /// A Wayland compositor answers.
    bool hasWayland = false;
    /// Virtual input devices may be made.
    bool mayUseUinput = false;
    bool hasXdgOpen = false;
    bool hasSessionBus = false;
    BusService notifications = BusService::absent;
    /// The portal that opens addresses and files. Only asked where there is no xdg-open, which goes first.
    BusService portal = BusService::absent;
    /// The window manager as it calls itself, and what it does for others.
    std::string windowManager{};
    bool closesWindows = true;
    bool movesWindows = true;
    /// It does so at a socket of its own, and lays windows out itself.
    bool takesI3Commands = false;

    /// The way that keys and clicks take: the wish, else the X server of a session without Wayland, else uinput, which
    /// is the only way left without any session. Never automatic.
    LinuxActionSettings::InputRoute inputRoute(LinuxActionSettings::InputRoute wish) const;

    /// Looks at what sending keys and clicks takes, in some milliseconds. The rest stays as it is at first.
    static DesktopFacts probeInput(X11Connection& connection, const std::string& uinputPath);

    /// Looks around and asks the services, which are started if they do not run yet: as their first use would do.
    /// Takes some milliseconds; some seconds for a service that does not answer. Leaves out the window manager.
    static DesktopFacts probe(X11Connection& connection, MessageBus& bus, const std::string& uinputPath);
};

}  // namespace kinesta
