#include "platform/linuxdesktop/ScreenSelection.h"

#include <QGuiApplication>

#include "platform/linux/x11/XcbPointer.h"

namespace kinesta {
namespace {

int screenNumber() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

}  // namespace

xcb_connection_t* ScreenSelection::connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

ScreenSelection::ScreenSelection(const QByteArray& name) {
    if (connection() == nullptr)
        return;
    const QByteArray full = name + QByteArray::number(screenNumber());
    const auto cookie = xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(full.size()), full.constData());
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection(), cookie, nullptr));
    if (reply)
        m_atom = reply->atom;
}

bool ScreenSelection::isOwned() const {
    if (m_atom == XCB_ATOM_NONE)
        return false;
    const auto cookie = xcb_get_selection_owner(connection(), m_atom);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace kinesta
