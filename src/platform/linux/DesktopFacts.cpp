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

DesktopFacts DesktopFacts::probe(X11Connection& connection, MessageBus& bus, const std::string& uinputPath) {
    DesktopFacts facts;
    facts.hasX = connection.answers();
    facts.hasXTest = facts.hasX && connection.canPostInput();
    facts.hasWayland = answersWayland();
    facts.hasWindowManager = facts.hasX && managesWindows(connection);
    facts.mayUseUinput =
        static_cast<bool>(FileDescriptor(::open(uinputPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)));
    facts.hasXdgOpen = isInSearchPath("xdg-open");
    facts.hasSessionBus = bus.open() != nullptr;
    facts.hasNotifications = bus.offers("org.freedesktop.Notifications");
    facts.hasPortal = bus.offers("org.freedesktop.portal.Desktop");
    return facts;
}

}  // namespace kinesta
