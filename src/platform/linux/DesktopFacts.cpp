#include "platform/linux/DesktopFacts.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/linux/ExecutableSearch.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/XcbPointer.h"

namespace kinesta {
namespace {

/// How long a service may take to start and answer.
constexpr Seconds kPatience = 3;

bool managesWindows(X11Connection& display) {
    xcb_connection_t* connection = display.open();
    if (connection == nullptr)
        return false;
    constexpr std::string_view kName = "_NET_SUPPORTING_WM_CHECK";
    const XcbPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(kName.size()), kName.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    // The property may be left over from one that is gone: its window, then, is gone too.
    const XcbPointer<xcb_get_property_reply_t> owner(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, display.root(), atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (!owner || xcb_get_property_value_length(owner.get()) != sizeof(xcb_window_t))
        return false;
    xcb_window_t window = XCB_WINDOW_NONE;
    std::memcpy(&window, xcb_get_property_value(owner.get()), sizeof window);
    return XcbPointer<xcb_get_property_reply_t>(xcb_get_property_reply(
               connection, xcb_get_property(connection, 0, window, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr)) !=
           nullptr;
}

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
    facts.hasX = connection.answers();
    facts.hasXTest = facts.hasX && connection.canPostInput();
    facts.hasWayland = answersWayland();
    facts.mayUseUinput =
        static_cast<bool>(FileDescriptor(::open(uinputPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)));
    return facts;
}

DesktopFacts DesktopFacts::probe(X11Connection& connection, MessageBus& bus, const std::string& uinputPath) {
    DesktopFacts facts = probeInput(connection, uinputPath);
    facts.hasWindowManager = facts.hasX && managesWindows(connection);
    facts.hasXdgOpen = isInSearchPath("xdg-open");
    facts.hasSessionBus = bus.open() != nullptr;
    facts.notifications = serviceAt(bus, {"org.freedesktop.Notifications", "/org/freedesktop/Notifications"},
                                    "org.freedesktop.Notifications", "GetServerInformation");
    // A portal may be there without the part that opens things; then it knows no such properties.
    if (!facts.hasXdgOpen)
        facts.portal = serviceAt(bus, {"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"},
                                 "org.freedesktop.DBus.Properties", "GetAll", "org.freedesktop.portal.OpenURI");
    return facts;
}

}  // namespace kinesta
