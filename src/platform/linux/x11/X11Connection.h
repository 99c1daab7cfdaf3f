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
/// No call waits beyond a deadline, and connecting does not either. An X server can end before we do, at a logout or in
/// a crash: the next use connects again if there is a server. Requests for windows that have vanished give null
/// replies.
class X11Connection {
  public:
    /// An empty name means DISPLAY, read at each attempt to connect. Connects at the first use.
    explicit X11Connection(std::string displayName = {});
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    /// Returns once the server has taken everything that was sent, or after half a second.
    ~X11Connection();

    /// Whether requests can be sent now; connects if necessary. A server that hangs costs one timeout, not one for each
    /// request: false within a millisecond while an answer is overdue, and at once for a second after connecting has
    /// timed out.
    bool prepare(Deadline deadline);

    /// Whether the server answers now, or did in the last 50 ms; waits at most `patience` seconds.
    bool answers(Seconds patience = 0.15);

    /// Whether there is a connection and no answer is overdue.
    bool isAnswering() const;

    /// Whether the last attempt found a server that did not accept the connection in time.
    bool isHanging() const { return m_isHanging; }

    /// Changes with each connection: what came from one connection is not valid for the next.
    std::uint64_t generation() const { return m_generation; }

    /// How often we have waited for the server so far. Requests that are sent together count once.
    unsigned roundTrips() const { return m_roundTrips; }

    // Call the functions below only after prepare().
    /// Null without a connection.
    xcb_connection_t* xcb() const { return m_ewmh.connection; }
    const xcb_ewmh_connection_t& atoms() const { return m_ewmh; }
    xcb_ewmh_connection_t* ewmh() { return &m_ewmh; }
    int screenNumber() const { return m_screenNumber; }
    xcb_window_t root() const { return m_ewmh.screens[m_screenNumber]->root; }
    /// An invisible window of ours; we get an event when one of its properties changes.
    xcb_window_t ownWindow() const { return m_ownWindow; }
    /// Whether the server lets clients post input (XTest 2.2, since 1996).
    bool canPostInput() const { return m_canPostInput; }
    /// Whether the server reports monitors (RandR 1.5).
    bool knowsMonitors() const { return m_knowsMonitors; }
    /// The property with the size of the shadows around a window that draws its own frame.
    xcb_atom_t gtkFrameExtents() const { return m_gtkFrameExtents; }
    /// The property that holds where a window was before it was tiled.
    xcb_atom_t tilingRecord() const { return m_tilingRecord; }
    /// The property that holds the path of i3's socket.
    xcb_atom_t i3SocketPath() const { return m_i3SocketPath; }

    /// The reply to a request; null if it failed, no answer came in time or there is no connection. Call exactly once
    /// for each cookie.
    template <typename Reply, typename Cookie>
    XcbPointer<Reply> reply(Cookie cookie, Deadline deadline) {
        return XcbPointer<Reply>(static_cast<Reply*>(awaitReply(cookie.sequence, deadline)));
    }

    xcb_get_property_cookie_t requestProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                              std::uint32_t maximumItems = 64);

    /// The items of a property of 32-bit items; nothing if it does not exist, has another type or did not come in time.
    std::optional<std::vector<std::uint32_t>> items(xcb_get_property_cookie_t cookie, xcb_atom_t type,
                                                    Deadline deadline);

    /// Runs library code that waits for answers itself. At the deadline the connection is cut, which ends the wait.
    void runUntil(Deadline deadline, const std::function<void()>& work);

    /// Reads the events that have arrived.
    void takeEvents();

    /// How many events of this type have been read on this connection.
    std::uint64_t eventCount(std::uint8_t type) const { return m_eventCounts[type & 0x7FU]; }

    /// Waits for an event for which `isAwaited` is true. Returns whether it came.
    bool awaitEvent(const std::function<bool(const xcb_generic_event_t&)>& isAwaited, Deadline deadline);

    /// Requests the server's time, for messages to the window manager. serverTime() returns it once a later request has
    /// been answered, and XCB_CURRENT_TIME before that.
    void requestServerTime();
    xcb_timestamp_t serverTime();

    /// Sends the requests so far.
    void flush();

    void disconnect();

  private:
    bool connect(Deadline deadline);
    bool setUp(int screenNumber);
    /// Whether the answer to a request comes in time. `reply` is null if that is an error.
    bool arrives(unsigned sequence, Deadline deadline, void*& reply);
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
