#pragma once

#include <memory>

#include "input/recording/RecordingFormat.h"
#include "input/recording/RecordingInput.h"
#include "input/recording/RecordingLineDecoder.h"
#include "input/recording/RecordingReading.h"

namespace kinesta {

/// Reads Kinesta's own recordings: a header line, then one event a line.
class KinestaRecordingReader final : public RecordingReading {
  public:
    /// Reads the header.
    static Result<std::unique_ptr<RecordingReading>> open(std::unique_ptr<RecordingInput> input);

    const RecordingHeader& header() const override { return m_header; }
    Result<std::optional<RecordingEvent>> next() override;

  private:
    explicit KinestaRecordingReader(std::unique_ptr<RecordingInput> input) : m_input(std::move(input)) {}

    Result<std::optional<std::string_view>> nextFilledLine();

    std::unique_ptr<RecordingInput> m_input;
    RecordingLineDecoder m_decoder;
    RecordingHeader m_header;
    RecordingTimeOrder m_order;
};

}  // namespace kinesta
