#include "platform/linux/process/OtherProcess.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

namespace kinesta {

// By number: the header of glibc 2.36 for these calls cannot be used from C++.

OtherProcess::OtherProcess(pid_t number)
    : m_process(number > 0 ? static_cast<int>(::syscall(SYS_pidfd_open, number, 0)) : -1) {}

void OtherProcess::signal(int signal) const {
    if (m_process)
        ::syscall(SYS_pidfd_send_signal, m_process.number(), signal, nullptr, 0);
}

bool OtherProcess::waitForEnd(std::chrono::milliseconds patience) const {
    pollfd end{m_process.number(), POLLIN, 0};
    int ready = 0;
    while (m_process && (ready = ::poll(&end, 1, static_cast<int>(patience.count()))) < 0 && errno == EINTR) {
    }
    return !m_process || ready > 0;
}

}  // namespace kinesta
