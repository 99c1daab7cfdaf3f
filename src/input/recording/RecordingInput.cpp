#include "input/recording/RecordingInput.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kinesta {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 14;

}  // namespace

RecordingInput::RecordingInput(std::istream& stream, std::string name) : m_stream(stream), m_name(std::move(name)) {}

Result<std::optional<std::string_view>> RecordingInput::nextLine() {
    if (m_failure)
        return *m_failure;
    std::size_t searched = 0;
    for (;;) {
        const std::string_view text = view();
        const std::size_t end = text.find('\n', searched);
        const bool isLast = end == std::string_view::npos;
        if (std::min(end, text.size()) > kMaximumLine)
            return fail(m_line + 1, "the line is longer than 1 MiB");
        searched = text.size();
        if (isLast && fill())
            continue;
        if (isBroken())
            return fail(m_line + 1, "the input cannot be read");
        if (isLast && text.empty())
            return std::optional<std::string_view>();
        ++m_line;
        m_begin += isLast ? text.size() : end + 1;
        return std::optional(text.substr(0, end));
    }
}

std::string_view RecordingInput::peek(std::size_t size) {
    while (view().size() < size && fill()) {
    }
    return view();
}

std::size_t RecordingInput::read(char* target, std::size_t capacity) {
    const std::string_view text = peek(1);
    const std::size_t size = std::min(capacity, text.size());
    std::copy_n(text.data(), size, target);
    m_begin += size;
    return size;
}

Error RecordingInput::fail(std::size_t line, std::string_view what) {
    if (!m_failure)
        m_failure = Error{m_name + ":" + std::to_string(line) + ": " + std::string(what)};
    return *m_failure;
}

// Waits for one byte at most: a recording may arrive through a pipe while it is being made.
bool RecordingInput::fill() {
    if (m_stream.peek() == std::istream::traits_type::eof())
        return false;
    if (m_begin > 0) {
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
        m_end -= std::exchange(m_begin, 0);
    }
    if (m_buffer.size() - m_end < kPiece)
        m_buffer.resize(std::max(m_buffer.size() * 2, m_end + kPiece));
    char* const target = m_buffer.data() + m_end;
    std::streamsize size = m_stream.readsome(target, static_cast<std::streamsize>(m_buffer.size() - m_end));
    // An unbuffered stream, like std::cin shared with stdio, always reports that it has nothing.
    if (size <= 0 && m_stream.get(*target))
        size = 1;
    m_end += static_cast<std::size_t>(std::max<std::streamsize>(size, 0));
    return size > 0;
}

}  // namespace kinesta
