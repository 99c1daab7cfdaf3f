#include "input/evdev/EvdevRecordingEvents.h"

namespace kinesta {

std::optional<std::string> EvdevRecordingEvents::process(const EvdevEvent& event) {
    if (auto problem = m_order.take(event.time))
        return problem;
    m_ready.clear();
    m_taken = 0;
    m_assembler.process(event, [this](const PadEvent& made) { m_ready.push_back(made); });
    return std::nullopt;
}

std::optional<RecordingEvent> EvdevRecordingEvents::next() {
    if (m_taken == m_ready.size())
        return std::nullopt;
    return m_ready[m_taken++];
}

}  // namespace kinesta
