#include "platform/posix/WakePipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace kinesta {

WakePipe::WakePipe() {
    std::array<int, 2> ends{-1, -1};
    if (::pipe(ends.data()) != 0)
        return;
    m_end = FileDescriptor(ends[0]);
    m_start = FileDescriptor(ends[1]);
    for (const int end : ends)  // macOS has no pipe2()
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
}

void WakePipe::wake() const {
    const char byte = 0;
    // Cannot fail: a pipe has room for far more than anyone writes here.
    [[maybe_unused]] const ssize_t written = ::write(m_start.number(), &byte, sizeof byte);
}

}  // namespace kinesta
