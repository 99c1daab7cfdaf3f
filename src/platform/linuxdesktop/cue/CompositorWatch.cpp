#include "platform/linuxdesktop/cue/CompositorWatch.h"

#include <xcb/xfixes.h>

#include <QGuiApplication>
#include <utility>

namespace kinesta {

CompositorWatch::CompositorWatch(std::function<void()> onChange) : m_onChange(std::move(onChange)) {
    xcb_connection_t* connection = ScreenSelection::connection();
    if (connection == nullptr)
        return;
    // Qt has agreed with the server on a version of the extension.
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension != nullptr && extension->present != 0) {
        m_ownerChanged = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root,
                                          m_selection.atom(),
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        QGuiApplication::instance()->installNativeEventFilter(this);
    }
    m_isActive = m_selection.isOwned();
}

CompositorWatch::~CompositorWatch() = default;

bool CompositorWatch::blendsWindows() {
    return ScreenSelection::connection() == nullptr || ScreenSelection(kSelection).isOwned();
}

bool CompositorWatch::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7F) != m_ownerChanged)
        return false;
    const auto* change = static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
    if (change->selection != m_selection.atom())
        return false;
    const bool isActive = change->owner != XCB_WINDOW_NONE;
    if (std::exchange(m_isActive, isActive) != isActive)
        m_onChange();
    return false;
}

}  // namespace kinesta
