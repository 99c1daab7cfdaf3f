#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/x11/EwmhSession.h"
#include "platform/linux/x11/XcbWait.h"
#include "support/Seconds.h"

namespace kinesta {

/// Asks the X server, and never waits beyond a deadline: not for the connection, not for a reply. Windows that vanish
/// give null replies; a connection that is lost is made anew when it is next needed. One thread only.
class EwmhConnection {
  public:
    using Deadline = XcbDeadline;

    /// Connects nowhere yet. An empty name means the display in the environment.
    explicit EwmhConnection(std::string displayName = {});
    EwmhConnection(const EwmhConnection&) = delete;
    EwmhConnection& operator=(const EwmhConnection&) = delete;
    /// Returns once the server has taken everything that was sent, if it does so within half a second.
    ~EwmhConnection();

    static Deadline deadlineIn(Seconds timeout) { return xcbDeadlineIn(timeout); }

    /// Whether requests may be sent now; connects if need be. False at once while an answer that came too late is
    /// still owed: a server that hangs costs one timeout, not one for each request.
    bool prepare(Deadline deadline);

    /// Whether there is a connection, and nothing that is asked of it is overdue.
    bool isAnswering() const { return m_session && !m_owed && xcb_connection_has_error(m_session->connection()) == 0; }

    /// The connection, after prepare().
    EwmhSession& session() { return *m_session; }
    xcb_connection_t* xcb() { return m_session->connection(); }
    const xcb_ewmh_connection_t& atoms() { return m_session->atoms(); }

    /// The reply to a request; null for an error, no answer in time or no connection. Each cookie is to be given
    /// exactly once.
    template <typename Reply, typename Cookie>
    XcbPointer<Reply> reply(Cookie cookie, Deadline deadline) {
        return XcbPointer<Reply>(static_cast<Reply*>(awaitReply(cookie.sequence, deadline)));
    }

    /// Reads whole 32-bit properties: sent now, their items read in `items`.
    xcb_get_property_cookie_t requestProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                              std::uint32_t maximumItems = 64);

    /// The items of a property with items of 32 bits; nothing if it is not there, is of another type or was not told.
    static std::optional<std::vector<std::uint32_t>> items(const xcb_get_property_reply_t* reply, xcb_atom_t type);

    /// Waits for an event that `isAwaited`; whether it came. Others are dropped.
    bool awaitEvent(const std::function<bool(const xcb_generic_event_t&)>& isAwaited, Deadline deadline);

    /// Drops the events that nobody waits for.
    void dropEvents();

    /// The server's time now, for messages to the window manager; XCB_CURRENT_TIME if it is not told in time.
    xcb_timestamp_t serverTime(Deadline deadline);

    /// Sends what was asked for and not yet sent.
    void flush() {
        if (m_session)
            xcb_flush(xcb());
    }

  private:
    bool connect(Deadline deadline);
    void* awaitReply(unsigned sequence, Deadline deadline);

    std::string m_displayName;
    std::unique_ptr<EwmhSession> m_session;
    std::future<std::unique_ptr<EwmhSession>> m_connecting;
    /// The request whose answer is owed since its deadline.
    std::optional<unsigned> m_owed;
};

}  // namespace kinesta
