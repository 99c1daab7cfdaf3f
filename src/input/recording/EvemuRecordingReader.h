#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <string_view>

#include "input/evdev/EvdevDescription.h"
#include "input/evdev/EvdevRecordingEvents.h"
#include "input/recording/RecordingInput.h"
#include "input/recording/RecordingReading.h"

namespace kinesta {

/// Reads the recordings of evemu-record: a description of the device, which older ones lack, then one event of the
/// kernel a line.
class EvemuRecordingReader final : public RecordingReading {
  public:
    /// Reads the description, from `device` (may be null) if the recording has no axis ranges.
    static Result<std::unique_ptr<RecordingReading>> open(std::unique_ptr<RecordingInput> input, std::istream* device);

    const RecordingHeader& header() const override { return m_header; }
    Result<std::optional<RecordingEvent>> next() override;

  private:
    explicit EvemuRecordingReader(std::unique_ptr<RecordingInput> input) : m_input(std::move(input)) {}

    /// Reads up to the first event and returns it, if there is one.
    static Result<std::optional<EvdevEvent>> readDescription(RecordingInput& input, EvdevDescription& description);

    std::unique_ptr<RecordingInput> m_input;
    RecordingHeader m_header;
    std::optional<EvdevRecordingEvents> m_events;
    std::optional<EvdevEvent> m_firstEvent;
};

}  // namespace kinesta
