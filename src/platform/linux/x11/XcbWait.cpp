#include "platform/linux/x11/XcbWait.h"

#include <poll.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace kinesta {

using Clock = std::chrono::steady_clock;

XcbDeadline xcbDeadlineIn(Seconds timeout) {
    return Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(timeout));
}

bool awaitXcbInput(xcb_connection_t* connection, XcbDeadline deadline) {
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd input{xcb_get_file_descriptor(connection), POLLIN, 0};
        const int ready = poll(&input, 1, static_cast<int>(std::clamp<std::int64_t>(left, 0, 60'000)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

std::optional<XcbPointer<void>> awaitXcbReply(xcb_connection_t* connection, unsigned sequence, XcbDeadline deadline) {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    xcb_flush(connection);
    while (xcb_poll_for_reply(connection, sequence, &reply, &error) == 0) {
        if (xcb_connection_has_error(connection) != 0)
            return XcbPointer<void>();
        if (!awaitXcbInput(connection, deadline))
            return std::nullopt;
    }
    std::free(error);
    return XcbPointer<void>(reply);
}

}  // namespace kinesta
