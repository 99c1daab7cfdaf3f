#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Result.h"

namespace kinesta {

/// The bytes of a recording, read in pieces as they arrive, by lines or as a block. Keeps one line at most.
class RecordingInput {
  public:
    /// In bytes. A frame of a thousand contacts takes a twentieth of it.
    static constexpr std::size_t kMaximumLine = std::size_t{1} << 20;

    /// `stream` must outlive this object. Errors call it `name`.
    RecordingInput(std::istream& stream, std::string name);

    /// The next line without its end, valid until the next call; nothing at the end of the input.
    Result<std::optional<std::string_view>> nextLine();

    /// The rest of the current piece, after reading until it has `size` bytes. Takes nothing.
    std::string_view peek(std::size_t size);

    /// Takes up to `capacity` bytes; 0 at the end of the input and when it cannot be read.
    std::size_t read(char* target, std::size_t capacity);

    /// Skips `size` bytes that peek() has returned.
    void skip(std::size_t size) { m_begin += size; }

    /// Number of the line that nextLine() returned last, from 1; 0 before the first.
    std::size_t line() const { return m_line; }

    /// Makes nextLine() return the error "NAME:LINE: what" from now on.
    Error fail(std::string_view what) { return fail(m_line, what); }
    Error fail(std::size_t line, std::string_view what);

    /// The first error of fail().
    const std::optional<Error>& failure() const { return m_failure; }

    /// Whether reading failed, rather than ended.
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
