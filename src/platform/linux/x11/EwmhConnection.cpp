#include "platform/linux/x11/EwmhConnection.h"

#include <xcb/xcbext.h>

#include <thread>
#include <utility>

#include "platform/linux/process/BrokenPipes.h"

namespace kinesta {

EwmhConnection::EwmhConnection(std::string displayName) : m_displayName(std::move(displayName)) {
    surviveBrokenPipes();
}

EwmhConnection::~EwmhConnection() {
    // A server drops what it has not read when its client is gone. It reads in order, so an answer to the last request
    // says that none is left.
    if (m_session && xcb_connection_has_error(xcb()) == 0)
        reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(xcb()), deadlineIn(0.5));
}

bool EwmhConnection::prepare(Deadline deadline) {
    if (m_session && xcb_connection_has_error(xcb()) != 0) {
        m_session.reset();
        m_owed.reset();
    }
    if (!m_session)
        return connect(deadline);
    if (m_owed) {
        void* late = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(xcb(), *m_owed, &late, &error) == 0)
            return false;
        std::free(late);
        std::free(error);
        m_owed.reset();
        if (xcb_connection_has_error(xcb()) != 0)
            return prepare(deadline);
    }
    dropEvents();
    return xcb_connection_has_error(xcb()) == 0 || prepare(deadline);
}

bool EwmhConnection::connect(Deadline deadline) {
    if (!m_connecting.valid()) {
        // The library connects without a time limit, and so does it on a thread that nobody waits for. What it gets
        // when nobody wants it any more is released there.
        std::promise<std::unique_ptr<EwmhSession>> promise;
        m_connecting = promise.get_future();
        std::thread([name = m_displayName, result = std::move(promise)]() mutable {
            result.set_value(EwmhSession::open(name));
        }).detach();
    }
    if (m_connecting.wait_until(deadline) != std::future_status::ready)
        return false;
    m_session = m_connecting.get();
    return m_session != nullptr;
}

void* EwmhConnection::awaitReply(unsigned sequence, Deadline deadline) {
    auto reply = awaitXcbReply(xcb(), sequence, deadline);
    if (reply)
        return reply->release();
    if (m_owed)
        xcb_discard_reply(xcb(), sequence);
    else
        m_owed = sequence;
    return nullptr;
}

xcb_get_property_cookie_t EwmhConnection::requestProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                                          std::uint32_t maximumItems) {
    return xcb_get_property(xcb(), 0, window, property, type, 0, maximumItems);
}

std::optional<std::vector<std::uint32_t>> EwmhConnection::items(const xcb_get_property_reply_t* reply,
                                                                xcb_atom_t type) {
    if (reply == nullptr || reply->type != type || reply->format != 32)
        return std::nullopt;
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    return std::vector<std::uint32_t>(first, first + reply->value_len);
}

bool EwmhConnection::awaitEvent(const std::function<bool(const xcb_generic_event_t&)>& isAwaited, Deadline deadline) {
    xcb_flush(xcb());
    do {
        while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(xcb())})
            if (isAwaited(*event))
                return true;
    } while (xcb_connection_has_error(xcb()) == 0 && awaitXcbInput(xcb(), deadline));
    return false;
}

void EwmhConnection::dropEvents() {
    while (XcbPointer<xcb_generic_event_t>(xcb_poll_for_event(xcb()))) {
    }
}

xcb_timestamp_t EwmhConnection::serverTime(Deadline deadline) {
    // Nothing appended to a property: the server says so with its time.
    xcb_change_property(xcb(), XCB_PROP_MODE_APPEND, m_session->ownWindow(), m_session->tilingRecord(),
                        XCB_ATOM_CARDINAL, 32, 0, nullptr);
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    awaitEvent(
        [&](const xcb_generic_event_t& event) {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            if ((event.response_type & 0x7F) != XCB_PROPERTY_NOTIFY || change.window != m_session->ownWindow())
                return false;
            time = change.time;
            return true;
        },
        deadline);
    return time;
}

}  // namespace kinesta
