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

EwmhManagerQuery::EwmhManagerQuery(X11Connection& connection, xcb_window_t lastProof)
    : m_connection(connection),
      m_check(
          connection.requestProperty(connection.root(), connection.atoms()._NET_SUPPORTING_WM_CHECK, XCB_ATOM_WINDOW)),
      m_supported(
          connection.requestProperty(connection.root(), connection.atoms()._NET_SUPPORTED, XCB_ATOM_ATOM, 4096)),
      m_socket(connection.requestProperty(connection.root(), connection.i3SocketPath(), XCB_GET_PROPERTY_TYPE_ANY)) {
    askProof(lastProof);
}

void EwmhManagerQuery::askProof(xcb_window_t window) {
    const auto& atoms = m_connection.atoms();
    m_proofWindow = window;
    m_proof = m_connection.requestProperty(window, atoms._NET_SUPPORTING_WM_CHECK, XCB_ATOM_WINDOW);
    m_name = m_connection.requestProperty(window, atoms._NET_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY);
}

std::optional<EwmhManager> EwmhManagerQuery::answer(Deadline deadline) {
    using Reply = xcb_get_property_reply_t;
    const auto check = m_connection.items(m_check, XCB_ATOM_WINDOW, deadline);
    const auto supported = m_connection.items(m_supported, XCB_ATOM_ATOM, deadline);
    EwmhManager manager;
    manager.i3Socket = textOf(m_connection.reply<Reply>(m_socket, deadline).get());
    auto proof = m_connection.reply<Reply>(m_proof, deadline);
    auto name = m_connection.reply<Reply>(m_name, deadline);
    if (!check || check->empty())
        return std::nullopt;
    if ((*check)[0] != m_proofWindow) {
        askProof((*check)[0]);
        proof = m_connection.reply<Reply>(m_proof, deadline);
        name = m_connection.reply<Reply>(m_name, deadline);
    }
    // After a window manager ends, its property remains but its window does not.
    if (!proof)
        return std::nullopt;
    manager.proof = m_proofWindow;
    manager.name = textOf(name.get());
    if (supported) {
        const auto& atoms = m_connection.atoms();
        const auto takes = [&](xcb_atom_t request) {
            return std::find(supported->begin(), supported->end(), request) != supported->end();
        };
        manager.closesWindows = takes(atoms._NET_CLOSE_WINDOW);
        manager.movesWindows = takes(atoms._NET_MOVERESIZE_WINDOW);
    }
    // This is the name of sway's part that manages X windows. It puts no socket path on the root window.
    if (manager.name == "wlroots wm")
        if (const char* sway = std::getenv("SWAYSOCK"))
            manager.i3Socket = sway;
    if (!manager.i3Socket.empty() && manager.name != "i3" && manager.name != "wlroots wm")
        manager.i3Socket.clear();  // left over from i3
    return manager;
}

}  // namespace kinesta
