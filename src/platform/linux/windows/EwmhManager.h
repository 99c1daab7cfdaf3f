#pragma once

#include <optional>
#include <string>

#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The running window manager, as it describes itself.
struct EwmhManager {
    /// The name that it gives itself; may be empty.
    std::string name;
    /// Whether it supports these requests. True if it publishes no list of what it supports.
    bool closesWindows = true;
    bool movesWindows = true;
    /// The socket where it takes i3's commands; empty if it takes none. If set, requests must go there: i3 claims to
    /// move windows but leaves those in its layout alone, and sway takes no such requests from X clients.
    std::string i3Socket;

    bool takesI3Commands() const { return !i3Socket.empty(); }

    /// The window whose existence proves that it runs.
    xcb_window_t proof = XCB_WINDOW_NONE;
};

/// The queries to the window manager, sent together.
class EwmhManagerQuery {
  public:
    /// Sends the queries, also to the window that was the last proof: it usually still is. Call after
    /// X11Connection::prepare().
    EwmhManagerQuery(X11Connection& connection, xcb_window_t lastProof);

    /// Nothing if no window manager that follows EWMH runs, or if no answer came in time. Call exactly once.
    std::optional<EwmhManager> answer(Deadline deadline);

  private:
    void askProof(xcb_window_t window);

    X11Connection& m_connection;
    xcb_get_property_cookie_t m_check;
    xcb_get_property_cookie_t m_supported;
    xcb_get_property_cookie_t m_socket;
    xcb_window_t m_proofWindow = XCB_WINDOW_NONE;
    xcb_get_property_cookie_t m_proof{};
    xcb_get_property_cookie_t m_name{};
};

}  // namespace kinesta
