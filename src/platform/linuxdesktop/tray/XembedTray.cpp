#include "platform/linuxdesktop/tray/XembedTray.h"

#include <QByteArray>
#include <QList>
#include <cstring>

#include "platform/linux/x11/XcbEvent.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta {
namespace {

constexpr std::uint32_t kRequestDock = 0;

std::uint8_t typeOf(const xcb_generic_event_t& event) { return event.response_type & 0x7FU; }

}  // namespace

XembedTray::XembedTray(xcb_connection_t* connection, xcb_screen_t* screen, int screenNumber)
    : m_connection(connection),
      m_screen(screen),
      m_selection(atom(QByteArray("_NET_SYSTEM_TRAY_S").append(QByteArray::number(screenNumber)).constData())),
      m_manager(atom("MANAGER")),
      m_opcode(atom("_NET_SYSTEM_TRAY_OPCODE")),
      m_visual(atom("_NET_SYSTEM_TRAY_VISUAL")),
      m_colours(atom("_NET_SYSTEM_TRAY_COLORS")) {
    // A new tray sends a message to the clients that listen at the root window. The mask is that of the whole
    // connection.
    const XcbPointer<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, screen->root), nullptr));
    const std::uint32_t present = attributes ? attributes->your_event_mask : 0;
    const std::uint32_t mask = present | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, screen->root, XCB_CW_EVENT_MASK, &mask);
}

bool XembedTray::find() {
    // With the server held, so that the owner cannot vanish before its end is watched.
    xcb_grab_server(m_connection);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    m_owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (m_owner != XCB_WINDOW_NONE) {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection, m_owner, XCB_CW_EVENT_MASK, &mask);
    }
    xcb_ungrab_server(m_connection);
    xcb_flush(m_connection);
    return m_owner != XCB_WINDOW_NONE;
}

bool XembedTray::isArrival(const xcb_generic_event_t& event) const {
    const auto& message = eventAs<xcb_client_message_event_t>(event);
    return typeOf(event) == XCB_CLIENT_MESSAGE && message.window == m_screen->root && message.type == m_manager &&
           message.format == 32 && message.data.data32[1] == m_selection;
}

bool XembedTray::isDeparture(const xcb_generic_event_t& event) const {
    return m_owner != XCB_WINDOW_NONE && typeOf(event) == XCB_DESTROY_NOTIFY &&
           eventAs<xcb_destroy_notify_event_t>(event).window == m_owner;
}

bool XembedTray::isColourChange(const xcb_generic_event_t& event) const {
    const auto& change = eventAs<xcb_property_notify_event_t>(event);
    return m_owner != XCB_WINDOW_NONE && typeOf(event) == XCB_PROPERTY_NOTIFY && change.window == m_owner &&
           change.atom == m_colours;
}

XembedTray::Visual XembedTray::visual() const {
    const auto wanted = property(m_visual, XCB_ATOM_VISUALID);
    const xcb_visualid_t id = wanted && !wanted->isEmpty() ? wanted->first() : m_screen->root_visual;
    for (auto depth = xcb_screen_allowed_depths_iterator(m_screen); depth.rem != 0; xcb_depth_next(&depth))
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem != 0; xcb_visualtype_next(&visual))
            if (visual.data->visual_id == id)
                return {id, depth.data->depth, depth.data->depth == 32 && id != m_screen->root_visual};
    return {m_screen->root_visual, m_screen->root_depth, false};
}

std::optional<QColor> XembedTray::foreground() const {
    const auto colours = property(m_colours, XCB_ATOM_CARDINAL);
    if (!colours || colours->size() < 3)
        return std::nullopt;
    // 16 bits each: red, green, blue of the ordinary state, then other states.
    const auto part = [&](int i) { return static_cast<int>((*colours)[i] >> 8U & 0xFFU); };
    return QColor(part(0), part(1), part(2));
}

void XembedTray::dock(xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_owner;
    message.type = m_opcode;
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = kRequestDock;
    message.data.data32[2] = window;
    // The tray may be gone by now.
    xcb_discard_reply(m_connection, xcb_send_event_checked(m_connection, 0, m_owner, XCB_EVENT_MASK_NO_EVENT,
                                                           reinterpret_cast<const char*>(&message))
                                        .sequence);
    xcb_flush(m_connection);
}

xcb_atom_t XembedTray::atom(const char* name) const {
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::optional<QList<quint32>> XembedTray::property(xcb_atom_t name, xcb_atom_t type) const {
    const XcbPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, xcb_get_property(m_connection, 0, m_owner, name, type, 0, 16), nullptr));
    if (!reply || reply->format != 32)
        return std::nullopt;
    const auto* items = static_cast<const quint32*>(xcb_get_property_value(reply.get()));
    return QList<quint32>(items, items + xcb_get_property_value_length(reply.get()) / 4);
}

}  // namespace kinesta
