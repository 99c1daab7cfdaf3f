#pragma once

#include <ostream>
#include <string>

#include "input/recording/RecordingEvent.h"
#include "input/recording/RecordingFormat.h"
#include "input/recording/RecordingReading.h"
#include "support/Result.h"

namespace kinesta {

/// Writes a recording in Kinesta's own format. What it writes, the reader reads back equal; what the format cannot
/// hold, it refuses and writes nothing of.
class RecordingWriter {
  public:
    /// When the stream is made to pass on what it has: after every line, so that a crash costs no more than the line
    /// being written, or when the stream or its owner sees fit.
    enum class Flush { byStream, everyLine };

    /// `output` must outlive the writer.
    explicit RecordingWriter(std::ostream& output, Flush flush = Flush::byStream) : m_output(output), m_flush(flush) {}

    /// Writes the first line. To be called once, before any event. Text that is not UTF-8 is mended.
    Outcome writeHeader(const RecordingHeader& header);

    /// Writes one line. Refused: a time before that of the last event or beyond 9.2e9 seconds, numbers that are not
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
