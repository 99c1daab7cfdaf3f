#include "platform/linux/session/DesktopFacts.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>

#include "platform/linux/process/SessionEnvironment.h"
#include "platform/posix/FileDescriptor.h"

namespace kinesta {
namespace {

/// How long a service may take to start and answer.
constexpr Seconds kPatience = 3;

BusService serviceAt(MessageBus& bus, const BusObject& object, const char* interface, const char* method,
                     const char* argument = nullptr) {
    if (!bus.offers(object.service))
        return BusService::absent;
    return bus.ask(object, interface, method, kPatience, argument, MessageBus::Starting::ifNeeded)
               ? BusService::answering
               : BusService::silent;
}

}  // namespace

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

DesktopFacts DesktopFacts::probeInput(X11Connection& connection, const std::string& uinputPath) {
    DesktopFacts facts;
    facts.hasX = connection.isAnswering();
    facts.hasXTest = facts.hasX && connection.canPostInput();
    facts.hasWayland = answersWayland();
    facts.mayUseUinput =
        static_cast<bool>(FileDescriptor(::open(uinputPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)));
    return facts;
}

LinuxActionSettings::InputRoute DesktopFacts::inputRoute(LinuxActionSettings::InputRoute wish) const {
    using Route = LinuxActionSettings::InputRoute;
    if (wish != Route::automatic)
        return wish;
    return hasX && hasXTest && !hasWayland ? Route::xServer : Route::uinput;
}

DesktopFacts DesktopFacts::probe(X11Connection& connection, MessageBus& bus, const std::string& uinputPath) {
    connection.answers();
    DesktopFacts facts = probeInput(connection, uinputPath);
    facts.hasXdgOpen = isInSearchPath("xdg-open");
    facts.hasSessionBus = bus.open() != nullptr;
    facts.notifications = serviceAt(bus, {"org.freedesktop.Notifications", "/org/freedesktop/Notifications"},
                                    "org.freedesktop.Notifications", "GetServerInformation");
    // A portal may lack the part that opens things; it then has no such properties.
    if (!facts.hasXdgOpen)
        facts.portal = serviceAt(bus, {"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"},
                                 "org.freedesktop.DBus.Properties", "GetAll", "org.freedesktop.portal.OpenURI");
    return facts;
}

}  // namespace kinesta
