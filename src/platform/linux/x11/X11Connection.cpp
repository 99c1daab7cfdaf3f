#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbEvent.h"

#include <poll.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/linux/x11/X11Socket.h"
#include "platform/posix/BrokenPipes.h"

namespace kinesta {
namespace {

/// A busy machine may need this long for the dozen messages of a new connection, even if the deadline of the first
/// query is shorter.
constexpr Seconds kConnecting = 0.25;
constexpr Seconds kBeforeNextAttempt = 1;
constexpr Seconds kAnswersStay = 0.05;
/// How long to wait again for an answer that is overdue. An action asks two or three times.
constexpr Seconds kOverdue = 0.001;
constexpr Seconds kAtTheEnd = 0.5;

using AtomReply = xcb_intern_atom_reply_t;

xcb_intern_atom_cookie_t internAtom(xcb_connection_t* connection, std::string_view name) {
    return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t atomOf(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const XcbPointer<AtomReply> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Sending a request of an extension that the server lacks would end the connection.
bool hasExtension(xcb_connection_t* connection, xcb_extension_t& extension) {
    const auto* data = xcb_get_extension_data(connection, &extension);
    return data != nullptr && data->present != 0;
}

}  // namespace

X11Connection::X11Connection(std::string displayName) : m_displayName(std::move(displayName)) { surviveBrokenPipes(); }

X11Connection::~X11Connection() {
    // When a client disconnects, the server drops what it has not read. It reads in order, so its answer to the last
    // request means that it has read everything.
    if (xcb() != nullptr && xcb_connection_has_error(xcb()) == 0)
        reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(xcb()), deadlineIn(kAtTheEnd));
    disconnect();
}

bool X11Connection::prepare(Deadline deadline) {
    pollfd socket{xcb() != nullptr ? xcb_get_file_descriptor(xcb()) : -1, POLLOUT, 0};
    poll(&socket, 1, 0);
    // XCB notices that the server has ended only when it reads or writes. Without this check the first key would be
    // lost.
    const bool hasEnded = (socket.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0;
    if (xcb() != nullptr && (hasEnded || xcb_connection_has_error(xcb()) != 0))
        disconnect();
    if (xcb() == nullptr)
        return connect(deadline);
    // Writable means here that at least three quarters of the buffer are free, so requests never wait for space.
    if (socket.revents == 0)
        return false;
    if (m_overdue) {
        void* late = nullptr;
        if (!arrives(*m_overdue, std::min(deadline, deadlineIn(kOverdue)), late))
            return false;
        std::free(late);
        m_overdue.reset();
    }
    takeEvents();
    return xcb_connection_has_error(xcb()) == 0 || prepare(deadline);
}

bool X11Connection::answers(Seconds patience) {
    const auto deadline = deadlineIn(patience);
    if (!prepare(deadline))
        return false;
    return std::chrono::steady_clock::now() < m_lastAnswer + std::chrono::duration<Seconds>(kAnswersStay) ||
           reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(xcb()), deadline) != nullptr;
}

bool X11Connection::isAnswering() const {
    return xcb() != nullptr && !m_overdue && xcb_connection_has_error(xcb()) == 0;
}

bool X11Connection::connect(Deadline deadline) {
    if (std::chrono::steady_clock::now() < m_nextAttempt)
        return false;
    deadline = std::max(deadline, deadlineIn(kConnecting));
    const X11Socket server = X11Socket::connect(m_displayName, deadline);
    m_isHanging = server.isHanging;
    if (server.socket) {
        SocketDeadline limit(server.socket.number(), deadline);
        m_ewmh.connection = server.authorize();
        if (!setUp(server.screen))
            disconnect();
        m_isHanging = limit.hasPassed();
    }
    if (m_isHanging) {
        disconnect();
        m_nextAttempt = deadlineIn(kBeforeNextAttempt);
    }
    return xcb() != nullptr;
}

/// Sends the queries that each connection needs once. Has no time limit of its own.
bool X11Connection::setUp(int screenNumber) {
    xcb_connection_t* connection = xcb();
    if (xcb_connection_has_error(connection) != 0)
        return false;
    for (xcb_extension_t* extension : {&xcb_test_id, &xcb_randr_id})
        xcb_prefetch_extension_data(connection, extension);
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
    m_screenNumber = std::clamp(screenNumber, 0, m_ewmh.nb_screens - 1);
    m_canPostInput = m_knowsMonitors = false;
    if (hasExtension(connection, xcb_test_id))
        m_canPostInput = XcbPointer<xcb_test_get_version_reply_t>(xcb_test_get_version_reply(
                             connection, xcb_test_get_version(connection, 2, 2), nullptr)) != nullptr;
    if (hasExtension(connection, xcb_randr_id)) {
        const XcbPointer<xcb_randr_query_version_reply_t> version(
            xcb_randr_query_version_reply(connection, xcb_randr_query_version(connection, 1, 5), nullptr));
        m_knowsMonitors = version && (version->major_version > 1 || version->minor_version >= 5);
    }
    m_ownWindow = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_ownWindow, root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
    ++m_generation;
    return xcb_connection_has_error(connection) == 0;
}

void X11Connection::disconnect() {
    m_overdue.reset();
    m_lastAnswer = {};
    m_bytesWritten = 0;
    m_eventCounts = {};
    if (xcb() == nullptr)
        return;
    xcb_ewmh_connection_wipe(&m_ewmh);
    xcb_disconnect(m_ewmh.connection);
    m_ewmh = {};
}

bool X11Connection::arrives(unsigned sequence, Deadline deadline, void*& reply) {
    xcb_generic_error_t* error = nullptr;
    while (xcb_poll_for_reply(xcb(), sequence, &reply, &error) == 0)
        if (!awaitReady(xcb_get_file_descriptor(xcb()), POLLIN, deadline))
            return false;
    std::free(error);
    return true;
}

void* X11Connection::awaitReply(unsigned sequence, Deadline deadline) {
    void* reply = nullptr;
    xcb_flush(xcb());
    if (const auto written = xcb_total_written(xcb()); std::exchange(m_bytesWritten, written) != written)
        ++m_roundTrips;
    if (!arrives(sequence, deadline, reply)) {
        if (m_overdue)
            xcb_discard_reply(xcb(), sequence);
        else
            m_overdue = sequence;
        return nullptr;
    }
    if (xcb_connection_has_error(xcb()) == 0)
        m_lastAnswer = std::chrono::steady_clock::now();
    return reply;
}

xcb_get_property_cookie_t X11Connection::requestProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                                         std::uint32_t maximumItems) {
    return xcb_get_property(xcb(), 0, window, property, type, 0, maximumItems);
}

std::optional<std::vector<std::uint32_t>> X11Connection::items(xcb_get_property_cookie_t cookie, xcb_atom_t type,
                                                               Deadline deadline) {
    const auto property = reply<xcb_get_property_reply_t>(cookie, deadline);
    if (!property || property->type != type || property->format != 32)
        return std::nullopt;
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(property.get()));
    return std::vector<std::uint32_t>(first, first + property->value_len);
}

void X11Connection::runUntil(Deadline deadline, const std::function<void()>& work) {
    const SocketDeadline limit(xcb_get_file_descriptor(xcb()), deadline);
    work();
}

XcbPointer<xcb_generic_event_t> X11Connection::nextEvent() {
    XcbPointer<xcb_generic_event_t> event(xcb_poll_for_event(xcb()));
    if (!event)
        return event;
    ++m_eventCounts[event->response_type & 0x7FU];
    const auto& change = eventAs<xcb_property_notify_event_t>(*event);
    if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY && change.window == m_ownWindow)
        m_serverTime = change.time;
    return event;
}

void X11Connection::takeEvents() {
    while (nextEvent()) {
    }
}

bool X11Connection::awaitEvent(const std::function<bool(const xcb_generic_event_t&)>& isAwaited, Deadline deadline) {
    xcb_flush(xcb());
    do {
        while (const auto event = nextEvent())
            if (isAwaited(*event))
                return true;
    } while (xcb_connection_has_error(xcb()) == 0 && awaitReady(xcb_get_file_descriptor(xcb()), POLLIN, deadline));
    return false;
}

void X11Connection::requestServerTime() {
    m_serverTime = XCB_CURRENT_TIME;
    // Appending nothing to a property makes the server send an event with its time.
    xcb_change_property(xcb(), XCB_PROP_MODE_APPEND, m_ownWindow, m_tilingRecord, XCB_ATOM_CARDINAL, 32, 0, nullptr);
}

xcb_timestamp_t X11Connection::serverTime() {
    takeEvents();
    return m_serverTime;
}

void X11Connection::flush() {
    if (xcb() != nullptr)
        xcb_flush(xcb());
}

}  // namespace kinesta
