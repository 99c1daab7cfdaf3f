#include "input/evdev/PressureStageTracker.h"

namespace kinesta {

std::optional<std::int64_t> PressureStageTracker::process(bool isButtonDown, double pressure) {
    if (!isButtonDown) {
        m_isForced = false;
        return std::nullopt;
    }
    const bool isForced = m_isForced ? !(pressure < m_limits.softBelow) : pressure >= m_limits.forcedFrom;
    if (isForced == m_isForced)
        return std::nullopt;
    m_isForced = isForced;
    return isForced ? 2 : 1;
}

}  // namespace kinesta
