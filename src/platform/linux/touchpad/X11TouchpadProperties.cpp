#include "platform/linux/touchpad/X11TouchpadProperties.h"

#include <xcb/xinput.h>

#include <cstring>

#include "platform/linux/x11/X11Connect.h"
#include "platform/linux/x11/XcbWait.h"

namespace kinesta {
namespace {

/// What the thread that reads the touchpad waits for the server, in seconds.
constexpr Seconds kPatience = 0.5;

/// The reply to a request; null after an error or if it does not come in time.
template <typename Reply, typename Cookie>
XcbPointer<Reply> answer(xcb_connection_t* connection, Cookie cookie) {
    auto reply = awaitXcbReply(connection, cookie.sequence, xcbDeadlineIn(kPatience));
    if (!reply)
        xcb_discard_reply(connection, cookie.sequence);
    return XcbPointer<Reply>(reply ? static_cast<Reply*>(reply->release()) : nullptr);
}

XcbPointer<xcb_generic_event_t> owned(xcb_generic_event_t* event) { return XcbPointer<xcb_generic_event_t>(event); }

}  // namespace

void X11TouchpadProperties::Disconnect::operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }

X11TouchpadProperties::X11TouchpadProperties(const std::string& display) : m_connection(connectToXServer(display)) {
    xcb_connection_t* connection = m_connection.get();
    if (xcb_connection_has_error(connection) != 0 ||
        !answer<xcb_input_xi_query_version_reply_t>(connection, xcb_input_xi_query_version(connection, 2, 0))) {
        m_connection.reset();
        return;
    }
    m_deviceNode = atom("Device Node");
    m_deviceEnabled = atom("Device Enabled");
    m_libinputSendEvents = atom("libinput Send Events Mode Enabled");
    m_synapticsOff = atom("Synaptics Off");
    struct {
        xcb_input_event_mask_t header{.deviceid = XCB_INPUT_DEVICE_ALL, .mask_len = 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_PROPERTY | XCB_INPUT_XI_EVENT_MASK_HIERARCHY;
    } selection;
    xcb_input_xi_select_events(connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, 1,
                               &selection.header);
    xcb_flush(connection);
}

int X11TouchpadProperties::fileDescriptor() const {
    return m_connection ? xcb_get_file_descriptor(m_connection.get()) : -1;
}

bool X11TouchpadProperties::takeChanges() {
    if (!m_connection)
        return false;
    bool isChanged = false;
    while (const auto event = owned(xcb_poll_for_event(m_connection.get())))
        isChanged = true;
    if (xcb_connection_has_error(m_connection.get()) == 0)
        return isChanged;
    m_connection.reset();
    return true;
}

SendEventsMode X11TouchpadProperties::mode(const std::string& path) {
    if (!m_connection)
        return SendEventsMode::enabled;
    for (bool isChanged = true; isChanged;) {
        m_mode = presentMode(path);
        // What changed meanwhile was read along with the answers and makes nothing readable any more.
        isChanged = false;
        while (const auto event = owned(xcb_poll_for_queued_event(m_connection.get())))
            isChanged = true;
    }
    return m_mode;
}

SendEventsMode X11TouchpadProperties::presentMode(const std::string& path) {
    const auto devices = answer<xcb_input_xi_query_device_reply_t>(
        m_connection.get(), xcb_input_xi_query_device(m_connection.get(), XCB_INPUT_DEVICE_ALL));
    if (!devices)
        return m_mode;  // of a server that hangs: as it was
    for (auto info = xcb_input_xi_query_device_infos_iterator(devices.get()); info.rem > 0;
         xcb_input_xi_device_info_next(&info)) {
        const std::uint16_t device = info.data->deviceid;
        const std::string node = property(device, m_deviceNode);
        if (node.substr(0, node.find('\0')) != path)  // whether or not the driver counts the NUL
            continue;
        const std::string isEnabled = property(device, m_deviceEnabled);
        const std::string modes = property(device, m_libinputSendEvents);
        const std::string synaptics = property(device, m_synapticsOff);
        if ((!isEnabled.empty() && isEnabled[0] == 0) || (!modes.empty() && modes[0] != 0) ||
            (!synaptics.empty() && synaptics[0] == 1))
            return SendEventsMode::disabled;
        if (modes.size() > 1 && modes[1] != 0)
            return SendEventsMode::disabledWithExternalMouse;
    }
    return SendEventsMode::enabled;
}

std::uint32_t X11TouchpadProperties::atom(const char* name) {
    const auto reply = answer<xcb_intern_atom_reply_t>(
        m_connection.get(),
        xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name));
    return reply ? reply->atom : 0;
}

/// The bytes of a property of 8-bit items; empty if there is none.
std::string X11TouchpadProperties::property(std::uint16_t device, std::uint32_t atom) {
    constexpr std::uint32_t kMostWords = 1024;
    xcb_connection_t* connection = m_connection.get();
    const auto reply = answer<xcb_input_xi_get_property_reply_t>(
        connection, xcb_input_xi_get_property(connection, device, 0, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWords));
    if (!reply || reply->format != 8)
        return {};
    const void* items = xcb_input_xi_get_property_items(reply.get());
    return {static_cast<const char*>(items), reply->num_items};
}

}  // namespace kinesta
