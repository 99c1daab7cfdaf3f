#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Result.h"

namespace kinesta {

/// The bytes of a recording, read in pieces as they come, by lines or as a block. Keeps no more than one line.
class RecordingInput {
  public:
    /// Bytes that a line may have. A frame of a thousand contacts takes a twentieth of it.
    static constexpr std::size_t kMaximumLine = std::size_t{1} << 20;

    /// `stream` must outlive this object. `name` is what errors call it.
    RecordingInput(std::istream& stream, std::string name);

    /// The next line without its end, valid until the next call; nothing at the end of the input.
    Result<std::optional<std::string_view>> nextLine();

    /// What is left of the current piece, after trying to have `size` bytes of it. Nothing is taken.
    std::string_view peek(std::size_t size);

    /// Takes up to `capacity` bytes; 0 at the end of the input and when it cannot be read.
    std::size_t read(char* target, std::size_t capacity);

    /// Takes and forgets `size` bytes that peek() has shown.
    void skip(std::size_t size) { m_begin += size; }

    /// Number of the line that nextLine() gave last, from 1; 0 before it.
    std::size_t line() const { return m_line; }

    /// "NAME:LINE: what", which nextLine() gives from now on.
    Error fail(std::string_view what) { return fail(m_line, what); }
    Error fail(std::size_t line, std::string_view what);

    /// What fail() was told first, if it was.
    const std::optional<Error>& failure() const { return m_failure; }

    /// Whether the stream could not be read (as opposed to: has ended).
    bool isBroken() const { return m_stream.bad(); }

  private:
    bool fill();
    std::string_view view() const { return {m_buffer.data() + m_begin, m_end - m_begin}; }

    std::istream& m_stream;
    std::string m_name;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_line = 0;
    std::optional<Error> m_failure;
};

}  // namespace kinesta
