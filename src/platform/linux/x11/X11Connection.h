#pragma once

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/x11/Deadline.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta {

/// Our connection to the X server. One thread only.
///
/// No call waits beyond a deadline, connecting included. An X server can end before we do, at a logout or in a crash:
/// the next use connects again, if there is a server. Windows that vanish give null replies.
class X11Connection {
  public:
    /// An empty name stands for DISPLAY as it is at each connecting. Connects at the first use.
    explicit X11Connection(std::string displayName = {});
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    /// Returns once the server has taken everything that was sent, or after half a second.
    ~X11Connection();

    /// Whether requests may be sent now; connects if need be. False at once while an answer is overdue, and for a
    /// second after connecting has timed out: a server that hangs costs one timeout, not one for each request.
    bool prepare(Deadline deadline);

    /// Whether the server answers now, or did so in the last 50 ms; waits at most `patience` seconds.
    bool answers(Seconds patience = 0.15);

    /// Whether there is a connection and no answer is overdue.
    bool isAnswering() const;

    /// Whether there is a server that did not let us connect in time, at the last attempt.
    bool isHanging() const { return m_isHanging; }

    /// Changes with each connection: what one connection was told does not hold for the next.
    std::uint64_t generation() const { return m_generation; }

    /// How often we waited for the server since the beginning: requests that are sent together count once.
    unsigned roundTrips() const { return m_roundTrips; }

    // All of these only after prepare().
    /// Null without a connection.
    xcb_connection_t* xcb() const { return m_ewmh.connection; }
    const xcb_ewmh_connection_t& atoms() const { return m_ewmh; }
    xcb_ewmh_connection_t* ewmh() { return &m_ewmh; }
    int screenNumber() const { return m_screenNumber; }
    xcb_window_t root() const { return m_ewmh.screens[m_screenNumber]->root; }
    /// A window that is never shown and notifies us when its properties change.
    xcb_window_t ownWindow() const { return m_ownWindow; }
    /// Whether the server lets clients post input (XTest 2.2, since 1996).
    bool canPostInput() const { return m_canPostInput; }
    /// Whether the server has monitors (RandR 1.5).
    bool knowsMonitors() const { return m_knowsMonitors; }
    /// The property with the size of the shadows around a window that draws its own frame.
    xcb_atom_t gtkFrameExtents() const { return m_gtkFrameExtents; }
    /// The property in which a window keeps where it was before it was tiled.
    xcb_atom_t tilingRecord() const { return m_tilingRecord; }
    /// The property in which i3 gives its socket.
    xcb_atom_t i3SocketPath() const { return m_i3SocketPath; }

    /// The reply to a request; null for an error, no answer in time or no connection. Exactly once for each cookie.
    template <typename Reply, typename Cookie>
    XcbPointer<Reply> reply(Cookie cookie, Deadline deadline) {
        return XcbPointer<Reply>(static_cast<Reply*>(awaitReply(cookie.sequence, deadline)));
    }

    xcb_get_property_cookie_t requestProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                              std::uint32_t maximumItems = 64);

    /// The items of a property of 32-bit items; nothing if it is not there, has another type or did not come in time.
    std::optional<std::vector<std::uint32_t>> items(xcb_get_property_cookie_t cookie, xcb_atom_t type,
                                                    Deadline deadline);

    /// Runs code of a library that waits for answers itself. At the deadline the connection is cut, which ends that.
    void runUntil(Deadline deadline, const std::function<void()>& work);

    /// Reads the events that have arrived.
    void takeEvents();

    /// How many events of this type have been read on this connection.
    std::uint64_t eventCount(std::uint8_t type) const { return m_eventCounts[type & 0x7FU]; }

    /// Waits for an event that `isAwaited`; whether it came.
    bool awaitEvent(const std::function<bool(const xcb_generic_event_t&)>& isAwaited, Deadline deadline);

    /// Asks for the server's time, for messages to the window manager. serverTime() has it as soon as a request that
    /// was sent later is answered; XCB_CURRENT_TIME before.
    void requestServerTime();
    xcb_timestamp_t serverTime();

    /// Sends what was requested so far.
    void flush();

    void disconnect();

  private:
    bool connect(Deadline deadline);
    bool setUp(int screenNumber);
    void* awaitReply(unsigned sequence, Deadline deadline);
    XcbPointer<xcb_generic_event_t> nextEvent();

    std::string m_displayName;
    xcb_ewmh_connection_t m_ewmh{};
    int m_screenNumber = 0;
    bool m_canPostInput = false;
    bool m_knowsMonitors = false;
    xcb_atom_t m_gtkFrameExtents = XCB_ATOM_NONE;
    xcb_atom_t m_tilingRecord = XCB_ATOM_NONE;
    xcb_atom_t m_i3SocketPath = XCB_ATOM_NONE;
    xcb_window_t m_ownWindow = XCB_WINDOW_NONE;

    std::uint64_t m_generation = 0;
    bool m_isHanging = false;
    Deadline m_nextAttempt{};
    /// The request whose answer is overdue.
    std::optional<unsigned> m_overdue;
    Deadline m_lastAnswer{};
    unsigned m_roundTrips = 0;
    std::uint64_t m_bytesWritten = 0;  // at the last round trip
    std::array<std::uint64_t, 128> m_eventCounts{};
    xcb_timestamp_t m_serverTime = XCB_CURRENT_TIME;
};

}  // namespace kinesta
