#include "platform/linux/x11/EwmhSession.h"

#include <cstdint>
#include <string_view>

#include "platform/linux/x11/X11Connect.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta {
namespace {

xcb_intern_atom_cookie_t internAtom(xcb_connection_t* connection, std::string_view name) {
    return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t atomOf(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool serverKnowsMonitors(xcb_connection_t* connection) {
    // A request of an extension that the server lacks would end the connection.
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (extension == nullptr || !extension->present)
        return false;
    const XcbPointer<xcb_randr_query_version_reply_t> version(
        xcb_randr_query_version_reply(connection, xcb_randr_query_version(connection, 1, 5), nullptr));
    return version && (version->major_version > 1 || version->minor_version >= 5);
}

}  // namespace

std::unique_ptr<EwmhSession> EwmhSession::open(const std::string& displayName) {
    int screenNumber = 0;
    std::unique_ptr<EwmhSession> session(new EwmhSession);
    session->m_ewmh.connection = connectToXServer(displayName, &screenNumber);
    return session->prepare(screenNumber) ? std::move(session) : nullptr;
}

EwmhSession::~EwmhSession() {
    xcb_ewmh_connection_wipe(&m_ewmh);
    xcb_disconnect(m_ewmh.connection);
}

bool EwmhSession::prepare(int screenNumber) {
    xcb_connection_t* connection = m_ewmh.connection;
    if (xcb_connection_has_error(connection) != 0)
        return false;
    const auto gtkFrameExtents = internAtom(connection, "_GTK_FRAME_EXTENTS");
    const auto tilingRecord = internAtom(connection, "_KINESTA_TILING_RECORD");
    const auto i3SocketPath = internAtom(connection, "I3_SOCKET_PATH");
    auto* ewmhCookies = xcb_ewmh_init_atoms(connection, &m_ewmh);
    if (xcb_ewmh_init_atoms_replies(&m_ewmh, ewmhCookies, nullptr) == 0) {
        // The library has freed these already.
        m_ewmh.screens = nullptr;
        m_ewmh._NET_WM_CM_Sn = nullptr;
        return false;
    }
    m_gtkFrameExtents = atomOf(connection, gtkFrameExtents);
    m_tilingRecord = atomOf(connection, tilingRecord);
    m_i3SocketPath = atomOf(connection, i3SocketPath);
    m_screenNumber = screenNumber;
    m_knowsMonitors = serverKnowsMonitors(connection);

    m_ownWindow = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_ownWindow, root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
    return xcb_connection_has_error(connection) == 0;
}

}  // namespace kinesta
