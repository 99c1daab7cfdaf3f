#include "platform/linux/DesktopFacts.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>

#include "platform/linux/ExecutableSearch.h"
#include "platform/linux/FileDescriptor.h"

namespace kinesta {
bool answersWayland() {
    const char* name = std::getenv("WAYLAND_DISPLAY");
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    if (name == nullptr || name[0] == '\0' || (name[0] != '/' && folder == nullptr))
        return false;
    const std::string path = name[0] == '/' ? name : std::string(folder) + "/" + name;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return connect(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

DesktopFacts DesktopFacts::probe(X11Connection& connection, EwmhDesktop& desktop, MessageBus& bus,
                                 const std::string& uinputPath) {
    DesktopFacts facts;
    facts.hasX = connection.answers();
    facts.hasXTest = facts.hasX && connection.canPostInput();
    facts.hasWayland = answersWayland();
    if (const auto manager = facts.hasX ? desktop.manager() : std::nullopt) {
        facts.hasWindowManager = true;
        facts.windowManager = manager->name;
        facts.takesI3Commands = manager->takesI3Commands();
        const auto snapshot = desktop.snapshot();
        facts.closesWindows = snapshot && snapshot->closesWindows;
        facts.movesWindows = snapshot && snapshot->movesWindows;
    }
    facts.mayUseUinput =
        static_cast<bool>(FileDescriptor(::open(uinputPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)));
    facts.hasXdgOpen = isInSearchPath("xdg-open");
    facts.hasSessionBus = bus.open() != nullptr;
    facts.hasNotifications = bus.offers("org.freedesktop.Notifications");
    facts.hasPortal = bus.offers("org.freedesktop.portal.Desktop");
    return facts;
}

}  // namespace kinesta
