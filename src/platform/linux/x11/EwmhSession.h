#pragma once

#include <xcb/randr.h>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <memory>
#include <string>

namespace kinesta {

/// One connection to an X server, with all that is asked of the server once: atoms, extensions, a window of our own.
class EwmhSession {
  public:
    /// Connects. Waits for the server as long as it takes; null if there is none or it refuses. An empty name means
    /// the one in the environment.
    static std::unique_ptr<EwmhSession> open(const std::string& displayName);

    EwmhSession(const EwmhSession&) = delete;
    EwmhSession& operator=(const EwmhSession&) = delete;
    ~EwmhSession();

    xcb_connection_t* connection() const { return m_ewmh.connection; }
    const xcb_ewmh_connection_t& atoms() const { return m_ewmh; }
    /// The same for the library's requests, which want it so.
    xcb_ewmh_connection_t* ewmh() { return &m_ewmh; }
    int screenNumber() const { return m_screenNumber; }
    const xcb_screen_t& screen() const { return *m_ewmh.screens[m_screenNumber]; }
    xcb_window_t root() const { return screen().root; }

    /// What the shadows around a window take that draws its own frame.
    xcb_atom_t gtkFrameExtents() const { return m_gtkFrameExtents; }

    /// Where a window remembers where it was before it was tiled.
    xcb_atom_t tilingRecord() const { return m_tilingRecord; }

    /// Where i3 tells its socket.
    xcb_atom_t i3SocketPath() const { return m_i3SocketPath; }

    /// Whether the server tells monitors (RandR 1.5).
    bool knowsMonitors() const { return m_knowsMonitors; }

    /// A window that is never shown and tells us when its properties change.
    xcb_window_t ownWindow() const { return m_ownWindow; }

  private:
    EwmhSession() = default;
    bool prepare(int screenNumber);

    xcb_ewmh_connection_t m_ewmh{};
    int m_screenNumber = 0;
    bool m_knowsMonitors = false;
    xcb_atom_t m_gtkFrameExtents = XCB_ATOM_NONE;
    xcb_atom_t m_tilingRecord = XCB_ATOM_NONE;
    xcb_atom_t m_i3SocketPath = XCB_ATOM_NONE;
    xcb_window_t m_ownWindow = XCB_WINDOW_NONE;
};

}  // namespace kinesta
