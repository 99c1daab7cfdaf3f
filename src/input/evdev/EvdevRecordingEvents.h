#pragma once

#include <optional>
#include <string>
#include <vector>

#include "input/evdev/EvdevFrameAssembler.h"
#include "input/recording/RecordingEvent.h"
#include "input/recording/RecordingFormat.h"

namespace kinesta {

/// Turns a recorded stream of the kernel's events into those of a recording.
class EvdevRecordingEvents {
  public:
    explicit EvdevRecordingEvents(EvdevTouchpad touchpad) : m_assembler(std::move(touchpad)) {}

    /// Takes one event of the kernel; to be called when next() has nothing more, which bounds the memory. Returns what
    /// is wrong with the event, if anything.
    std::optional<std::string> process(const EvdevEvent& event);

    std::optional<RecordingEvent> next();

  private:
    EvdevFrameAssembler m_assembler;
    RecordingTimeOrder m_order;
    std::vector<PadEvent> m_ready;
    std::size_t m_taken = 0;
};

}  // namespace kinesta
