#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <string>

#include "support/Seconds.h"

namespace kinesta {

/// Our connection to the X server for keys, clicks and the layout. Main thread only.
///
/// An X server can end before we do, at a logout or in a crash: nothing here ends the process then. The next use
/// connects again, if there is a server.
class X11Connection {
  public:
    /// An empty name stands for DISPLAY as it is at each connecting. Connects at the first use.
    explicit X11Connection(std::string displayName = {});
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    /// Returns once the server has taken everything that was sent, if it does so within half a second.
    ~X11Connection();

    /// The connection, made again if it was lost; null without a server.
    xcb_connection_t* open();

    /// Whether the server answers now, waiting at most `patience` seconds. One that hangs, or that a hanging program
    /// has grabbed, would hold us up at the next question, for as long as it likes.
    bool answers(Seconds patience = 0.15);

    /// Counts the connections made: whoever keeps something that the server gave compares it.
    std::uint64_t generation() const { return m_generation; }

    /// The root window of the screen that the display's name means. Only after open() gave a connection.
    xcb_window_t root() const { return m_root; }

    /// Whether the server lets clients post input (XTest 2.2, since 1996). Only after open() gave a connection.
    bool canPostInput() const { return m_canPostInput; }

  private:
    void close();

    std::string m_displayName;
    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    bool m_canPostInput = false;
    std::uint64_t m_generation = 0;
};

}  // namespace kinesta
