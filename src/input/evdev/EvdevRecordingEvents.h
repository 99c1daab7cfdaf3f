#pragma once

#include <optional>
#include <string>
#include <vector>

#include "input/evdev/EvdevFrameAssembler.h"
#include "input/recording/RecordingFormat.h"

namespace kinesta {

/// The events of a recording that are made of a recorded stream of the kernel's, one at a time.
class EvdevRecordingEvents {
  public:
    explicit EvdevRecordingEvents(EvdevTouchpad touchpad) : m_assembler(std::move(touchpad)) {}

    /// Takes one event of the kernel; to be called when next() has nothing more, so that no more is kept than what
    /// one event gives. What is wrong with the event, if anything.
    std::optional<std::string> process(const EvdevEvent& event);

    std::optional<RecordingEvent> next();

  private:
    EvdevFrameAssembler m_assembler;
    RecordingTimeOrder m_order;
    std::vector<RecordingEvent> m_ready;
    std::size_t m_taken = 0;
};

}  // namespace kinesta
