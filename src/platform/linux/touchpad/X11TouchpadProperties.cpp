#include "platform/linux/touchpad/X11TouchpadProperties.h"

#include <xcb/xinput.h>

#include <cstring>
#include <utility>

namespace kinesta {
namespace {

/// How long the thread that reads the touchpad waits for the server, in seconds.
constexpr Seconds kPatience = 0.5;

}  // namespace

X11TouchpadProperties::X11TouchpadProperties(const std::string& display) : m_connection(display) {
    const auto deadline = deadlineIn(kPatience);
    if (!m_connection.prepare(deadline))
        return;
    xcb_connection_t* connection = m_connection.xcb();
    m_connection.runUntil(deadline, [connection] {
        const XcbPointer<xcb_input_xi_query_version_reply_t> version(
            xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 0), nullptr));
    });
    m_deviceNode = atom("Device Node");
    m_deviceEnabled = atom("Device Enabled");
    m_libinputSendEvents = atom("libinput Send Events Mode Enabled");
    m_synapticsOff = atom("Synaptics Off");
    struct {
        xcb_input_event_mask_t header{.deviceid = XCB_INPUT_DEVICE_ALL, .mask_len = 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_PROPERTY | XCB_INPUT_XI_EVENT_MASK_HIERARCHY;
    } selection;
    xcb_input_xi_select_events(connection, m_connection.root(), 1, &selection.header);
    m_connection.flush();
}

bool X11TouchpadProperties::isConnected() const {
    return m_connection.xcb() != nullptr && xcb_connection_has_error(m_connection.xcb()) == 0;
}

int X11TouchpadProperties::fileDescriptor() const {
    return isConnected() ? xcb_get_file_descriptor(m_connection.xcb()) : -1;
}

bool X11TouchpadProperties::takeChanges() {
    if (!isConnected())
        return false;
    m_connection.takeEvents();
    const bool hasChanged = hasNews();
    if (isConnected())
        return hasChanged;
    m_connection.disconnect();
    return true;
}

bool X11TouchpadProperties::hasNews() {
    const auto changes = m_connection.eventCount(XCB_GE_GENERIC);
    return std::exchange(m_changes, changes) != changes;
}

SendEventsMode X11TouchpadProperties::mode(const std::string& path) {
    if (!isConnected())
        return SendEventsMode::enabled;
    do {
        m_mode = presentMode(path);
        // Events that arrived with the answers are already read and no longer make the descriptor readable.
        m_connection.takeEvents();
    } while (hasNews());
    return m_mode;
}

SendEventsMode X11TouchpadProperties::presentMode(const std::string& path) {
    if (!m_connection.prepare(deadlineIn(kPatience)))
        return m_mode;  // the server hangs: as before
    const auto devices = m_connection.reply<xcb_input_xi_query_device_reply_t>(
        xcb_input_xi_query_device(m_connection.xcb(), XCB_INPUT_DEVICE_ALL), deadlineIn(kPatience));
    if (!devices)
        return m_mode;
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
    const auto reply = m_connection.reply<xcb_intern_atom_reply_t>(
        xcb_intern_atom(m_connection.xcb(), 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        deadlineIn(kPatience));
    return reply ? reply->atom : 0;
}

/// The bytes of a property of 8-bit items; empty if there is none.
std::string X11TouchpadProperties::property(std::uint16_t device, std::uint32_t atom) {
    constexpr std::uint32_t kMostWords = 1024;
    const auto reply = m_connection.reply<xcb_input_xi_get_property_reply_t>(
        xcb_input_xi_get_property(m_connection.xcb(), device, 0, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWords),
        deadlineIn(kPatience));
    if (!reply || reply->format != 8)
        return {};
    const void* items = xcb_input_xi_get_property_items(reply.get());
    return {static_cast<const char*>(items), reply->num_items};
}

}  // namespace kinesta
