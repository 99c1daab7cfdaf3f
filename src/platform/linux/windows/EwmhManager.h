#pragma once

#include <optional>
#include <string>

#include "platform/linux/x11/EwmhConnection.h"

namespace kinesta {

/// The window manager that runs, as far as it tells of itself.
struct EwmhManager {
    /// As it calls itself; may be empty.
    std::string name;
    /// Whether it says that it takes such requests, or does not say which it takes.
    bool closesWindows = true;
    bool movesWindows = true;
    /// Where it takes i3's commands; empty if it does not. It is then to be asked there: i3 says that it moves windows
    /// and leaves those in its layout alone, and sway takes nothing of the kind from X clients.
    std::string i3Socket;

    bool takesI3Commands() const { return !i3Socket.empty(); }

    /// Nothing if none runs that follows the desktop standard, or no answer came in time. After
    /// EwmhConnection::prepare(); two round trips.
    static std::optional<EwmhManager> ask(EwmhConnection& connection, EwmhConnection::Deadline deadline);
};

}  // namespace kinesta
