#include "support/NotingBuffer.h"

#include <cerrno>

namespace kinesta {

NotingBuffer::int_type NotingBuffer::overflow(int_type character) {
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return traits_type::not_eof(character);
    errno = 0;
    const int_type result = m_target.sputc(traits_type::to_char_type(character));
    note(traits_type::eq_int_type(result, traits_type::eof()));
    return result;
}

std::streamsize NotingBuffer::xsputn(const char* text, std::streamsize length) {
    errno = 0;
    const std::streamsize written = m_target.sputn(text, length);
    note(written < length);
    return written;
}

int NotingBuffer::sync() {
    errno = 0;
    const int result = m_target.pubsync();
    note(result != 0);
    return result;
}

void NotingBuffer::note(bool hasFailed) {
    if (hasFailed && m_failure == 0)
        m_failure = errno;
}

}  // namespace kinesta
