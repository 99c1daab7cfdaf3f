#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "input/recording/RecordingInput.h"

struct yaml_parser_s;

namespace kinesta {

/// Reads a YAML text piece by piece and keeps only the last one. Memory is bounded: depth and the length of a value
/// have a limit.
class YamlEvents {
  public:
    enum class Kind { scalar, beginMapping, endMapping, beginSequence, endSequence, end, failed };

    /// Levels of nested mappings and sequences at most.
    static constexpr int kMaximumDepth = 64;

    explicit YamlEvents(RecordingInput& input);

    /// Goes to the next piece. `end` and `failed` are final.
    Kind next();

    Kind kind() const { return m_kind; }
    /// The text of a scalar; empty for the others. Valid until the next call.
    std::string_view text() const { return m_text; }
    /// The line on which the last value began, from 1; after a failure the line of the error, if known.
    std::size_t line() const { return m_line; }
    /// Why next() failed.
    const std::string& problem() const { return m_problem; }

    /// Goes to the end of the value that the present piece begins. False if the text ends before.
    bool skipValue();

  private:
    struct Deleter {
        void operator()(yaml_parser_s* parser) const;
    };

    static int read(void* data, unsigned char* target, std::size_t capacity, std::size_t* size);
    Kind fail(std::string problem);
    std::size_t lineOfByte(std::size_t offset) const;

    RecordingInput& m_input;
    std::unique_ptr<yaml_parser_s, Deleter> m_parser;
    Kind m_kind = Kind::end;
    std::string m_text;
    std::size_t m_line = 1;
    std::string m_problem;
    int m_depth = 0;
    bool m_hasStarted = false;
    std::size_t m_readSincePiece = 0;
    bool m_isTooLong = false;
    std::string_view m_lastRead;  // in the parser's buffer, unchanged until the next read
    std::size_t m_bytesRead = 0;
    std::size_t m_linesRead = 0;
};

}  // namespace kinesta
