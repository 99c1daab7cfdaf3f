#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

#include "platform/linux/x11/Deadline.h"
#include "platform/posix/FileDescriptor.h"

struct xcb_connection_t;

namespace kinesta {

/// Shuts a socket down at a deadline unless this is destroyed before. XCB and the libraries on top of it wait for
/// answers without a limit; once the socket is shut down, they return at once and the connection has an error.
class SocketDeadline {
  public:
    SocketDeadline(int socket, Deadline deadline);
    SocketDeadline(const SocketDeadline&) = delete;
    SocketDeadline& operator=(const SocketDeadline&) = delete;
    ~SocketDeadline();

    bool hasPassed();

  private:
    FileDescriptor m_socket;  // our own copy: XCB may close the other one
    std::mutex m_lock;        // guards the two below
    bool m_isOver = false;
    bool m_hasPassed = false;
    std::condition_variable m_end;
    std::thread m_thread;
};

/// A socket that is connected to the server of a display; empty if there is no server. An empty name means DISPLAY.
struct X11Socket {
    FileDescriptor socket;
    /// Whether a server exists that did not accept the connection in time.
    bool isHanging = false;
    /// The number of the display, and the screen in its name.
    int display = 0;
    int screen = 0;

    static X11Socket connect(const std::string& displayName, Deadline deadline);

    /// Starts the X protocol, with the password that ~/.Xauthority has for this server. Never null, but the connection
    /// may have an error; the caller disconnects it either way. Waits for the server without a limit: use it with a
    /// SocketDeadline.
    xcb_connection_t* authorize() const;
};

}  // namespace kinesta
