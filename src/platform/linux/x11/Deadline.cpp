#include "platform/linux/x11/Deadline.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace kinesta {

using Steady = std::chrono::steady_clock;

Deadline deadlineIn(Seconds timeout) {
    return Steady::now() + std::chrono::duration_cast<Steady::duration>(std::chrono::duration<Seconds>(timeout));
}

Seconds timeLeft(Deadline deadline) {
    return std::max(0.0, std::chrono::duration<Seconds>(deadline - Steady::now()).count());
}

bool awaitReady(int descriptor, short events, Deadline deadline) {
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Steady::now()).count();
        pollfd waiting{descriptor, events, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(std::clamp<std::int64_t>(left, 0, 60'000)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

}  // namespace kinesta
