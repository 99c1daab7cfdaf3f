#include "platform/posix/InterruptibleStream.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

#include <cerrno>

#include "support/SystemError.h"

namespace kinesta {

Outcome InterruptibleStream::open(const std::string& path) {
    m_file = FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status {};
    if (!m_file || ::fstat(m_file.number(), &status) != 0)
        return Error{systemErrorText(errno)};
    if (S_ISDIR(status.st_mode))
        return Error{systemErrorText(EISDIR)};
    m_isComplete = S_ISREG(status.st_mode);
    return success();
}

std::streambuf::int_type InterruptibleStream::underflow() {
    for (;;) {
        std::array<pollfd, 2> sources{pollfd{.fd = m_ending.number(), .events = POLLIN, .revents = 0},
                                      pollfd{.fd = m_file.number(), .events = POLLIN, .revents = 0}};
        if (poll(sources.data(), sources.size(), -1) < 0)
            continue;
        if (sources[0].revents != 0)
            return traits_type::eof();
        // Linux reports the hang-up of a FIFO only after a writer has been there. So poll() sleeps until the first one
        // comes, and a read of nothing is the end. Other systems may report it before; then the stream ends at once.
        const ssize_t size = ::read(m_file.number(), m_buffer.data(), m_buffer.size());
        if (size > 0) {
            setg(m_buffer.data(), m_buffer.data(), m_buffer.data() + size);
            return traits_type::to_int_type(m_buffer.front());
        }
        if (size < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (size < 0)
            m_stream.setstate(std::ios::badbit);
        return traits_type::eof();
    }
}

}  // namespace kinesta
