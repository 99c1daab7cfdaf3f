#include "platform/linux/windows/EwmhManager.h"

#include <algorithm>
#include <cstdlib>

namespace kinesta {
namespace {

std::string textOf(const xcb_get_property_reply_t* reply) {
    if (reply == nullptr || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply)), reply->value_len};
}

}  // namespace

std::optional<EwmhManager> EwmhManager::ask(EwmhConnection& connection, EwmhConnection::Deadline deadline) {
    using Reply = xcb_get_property_reply_t;
    const auto& atoms = connection.atoms();
    const xcb_window_t root = connection.session().root();
    const auto checkCookie = connection.requestProperty(root, atoms._NET_SUPPORTING_WM_CHECK, XCB_ATOM_WINDOW);
    const auto supportedCookie = connection.requestProperty(root, atoms._NET_SUPPORTED, XCB_ATOM_ATOM, 4096);
    const auto socketCookie =
        connection.requestProperty(root, connection.session().i3SocketPath(), XCB_GET_PROPERTY_TYPE_ANY);
    const auto check = EwmhConnection::items(connection.reply<Reply>(checkCookie, deadline).get(), XCB_ATOM_WINDOW);
    const auto supported =
        EwmhConnection::items(connection.reply<Reply>(supportedCookie, deadline).get(), XCB_ATOM_ATOM);
    EwmhManager manager;
    manager.i3Socket = textOf(connection.reply<Reply>(socketCookie, deadline).get());
    if (!check || check->empty())
        return std::nullopt;
    // The property may be left over from one that is gone: its window, then, is gone too.
    const auto proofCookie = connection.requestProperty((*check)[0], atoms._NET_SUPPORTING_WM_CHECK, XCB_ATOM_WINDOW);
    const auto nameCookie = connection.requestProperty((*check)[0], atoms._NET_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY);
    const auto proof = connection.reply<Reply>(proofCookie, deadline);
    manager.name = textOf(connection.reply<Reply>(nameCookie, deadline).get());
    if (!proof)
        return std::nullopt;
    if (supported) {
        const auto takes = [&](xcb_atom_t request) {
            return std::find(supported->begin(), supported->end(), request) != supported->end();
        };
        manager.closesWindows = takes(atoms._NET_CLOSE_WINDOW);
        manager.movesWindows = takes(atoms._NET_MOVERESIZE_WINDOW);
    }
    // So does the part of sway call itself that manages X windows. It puts nothing on the root window.
    if (manager.name == "wlroots wm")
        if (const char* sway = std::getenv("SWAYSOCK"))
            manager.i3Socket = sway;
    if (!manager.i3Socket.empty() && manager.name != "i3" && manager.name != "wlroots wm")
        manager.i3Socket.clear();  // left over from i3
    return manager;
}

}  // namespace kinesta
