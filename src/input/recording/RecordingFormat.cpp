#include "input/recording/RecordingFormat.h"

#include "support/Text.h"

namespace kinesta {

std::optional<std::string> RecordingTimeOrder::take(Seconds time) {
    if (!RecordingFormat::isTime(time))
        return "the time " + numberText(time) + " is not within 9.2e9 seconds";
    if (time < m_last)
        return "the time " + numberText(time) + " is before " + numberText(m_last) + ", that of the event before";
    m_last = time;
    return std::nullopt;
}

}  // namespace kinesta
