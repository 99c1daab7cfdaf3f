#pragma once

#include <ostream>
#include <string>

#include "input/recording/RecordingEvent.h"
#include "input/recording/RecordingFormat.h"
#include "input/recording/RecordingReading.h"
#include "support/Result.h"

namespace kinesta {

/// Writes a recording in Kinesta's own format. The reader reads every written event back equal. An event that the
/// format cannot hold is refused, and no part of it is written.
class RecordingWriter {
  public:
    /// When to flush: after every line, so that a crash loses only the line being written, or when the stream does.
    enum class Flush { byStream, everyLine };

    /// `output` must outlive the writer.
    explicit RecordingWriter(std::ostream& output, Flush flush = Flush::byStream) : m_output(output), m_flush(flush) {}

    /// Writes the first line. To be called once, before any event. Invalid UTF-8 is replaced.
    Outcome writeHeader(const RecordingHeader& header);

    /// Writes one line. Refuses a time before that of the last event or beyond 9.2e9 seconds, numbers that are not
    /// finite, an identifier twice in a frame, a tap waiting interval that is not in the list.
    Outcome write(const RecordingEvent& event);

  private:
    Outcome writeLine();

    std::ostream& m_output;
    Flush m_flush;
    RecordingTimeOrder m_order;
    std::string m_line;
};

}  // namespace kinesta
