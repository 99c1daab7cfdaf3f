#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <optional>

#include "platform/linux/x11/XcbPointer.h"
#include "support/Seconds.h"

namespace kinesta {

/// XCB waits for answers as long as it takes; these wait until a deadline. On the thread that uses the connection.
using XcbDeadline = std::chrono::steady_clock::time_point;

/// `timeout` seconds from now.
XcbDeadline xcbDeadlineIn(Seconds timeout);

/// Waits until the connection has something to read; whether it has.
bool awaitXcbInput(xcb_connection_t* connection, XcbDeadline deadline);

/// Waits for the answer to a request: the reply, which is null after an error or when the connection is lost. Nothing
/// if none came in time: then it is still to come, and to be asked for again or discarded.
std::optional<XcbPointer<void>> awaitXcbReply(xcb_connection_t* connection, unsigned sequence, XcbDeadline deadline);

}  // namespace kinesta
