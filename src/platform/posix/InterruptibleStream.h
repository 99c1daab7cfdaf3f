#pragma once

#include <array>
#include <istream>
#include <streambuf>
#include <string>

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/WakePipe.h"
#include "support/Result.h"

namespace kinesta {

/// The bytes of a file or a FIFO, as they arrive. Waits asleep, and another thread can end the wait.
class InterruptibleStream final : private std::streambuf {
  public:
    InterruptibleStream() = default;

    /// Opens `path` without waiting for a writer. The error is the reason, without the path.
    Outcome open(const std::string& path);

    /// Its writers then get a broken pipe.
    void close() { m_file = {}; }

    /// Whether everything is there already, as in a file.
    bool isComplete() const { return m_isComplete; }

    /// Ends when the file does, or the last writer has closed the FIFO; a FIFO without any writer yet is silent.
    std::istream& stream() { return m_stream; }

    /// Ends the stream, too. Any thread.
    void interrupt() const { m_ending.wake(); }

  private:
    int_type underflow() override;

    FileDescriptor m_file;
    WakePipe m_ending;
    bool m_isComplete = false;
    std::array<char, std::size_t{1} << 14> m_buffer{};
    std::istream m_stream{this};
};

}  // namespace kinesta
