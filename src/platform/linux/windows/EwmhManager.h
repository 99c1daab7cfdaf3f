#pragma once

#include <optional>
#include <string>

#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// The window manager that runs, as far as it tells of itself.
struct EwmhManager {
    /// As it calls itself; may be empty.
    std::string name;
    /// Whether it says that it takes such requests, or does not say which it takes.
    bool closesWindows = true;
    bool movesWindows = true;
    /// Where it takes i3's commands; empty if it does not. It is then to be asked there: i3 says that it moves windows
    /// and leaves those in its layout alone, and sway takes nothing of the kind from X clients.
    std::string i3Socket;

    bool takesI3Commands() const { return !i3Socket.empty(); }

    /// The window by which it shows that it runs.
    xcb_window_t proof = XCB_WINDOW_NONE;
};

/// What is asked of the window manager, sent at once.
class EwmhManagerQuery {
  public:
    /// Sends the questions, also to the window that was the proof the last time: it usually still is. After
    /// X11Connection::prepare().
    EwmhManagerQuery(X11Connection& connection, xcb_window_t lastProof);

    /// Nothing if no window manager runs that follows the desktop standard, or no answer came in time. Exactly once.
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
