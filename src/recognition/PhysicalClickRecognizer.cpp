#include "recognition/PhysicalClickRecognizer.h"

#include <algorithm>

namespace kinesta {
namespace {

constexpr int kMostClicks = 3;

}  // namespace

std::optional<PhysicalClickSequence> PhysicalClickRecognizer::process(int fingers, PhysicalClickPressure pressure,
                                                                      Seconds timestamp) {
    if (!acceptsFingers(fingers)) {
        reset();
        return std::nullopt;
    }
    const bool continues = m_counted && m_counted->sequence.fingers == fingers &&
                           timestamp - m_counted->lastClickTime <= m_limits.maximumInterval;
    PhysicalClickSequence sequence{fingers, 1, pressure};
    if (continues) {
        sequence.clicks = std::min(m_counted->sequence.clicks + 1, kMostClicks);
        if (m_counted->sequence.pressure != pressure)
            sequence.pressure.reset();
    }
    m_counted = CountedClicks{sequence, timestamp};
    return sequence;
}

std::optional<PhysicalClickSequence> PhysicalClickRecognizer::finalize(const PhysicalClickSequence& expected) {
    if (!m_counted || m_counted->sequence != expected)
        return std::nullopt;
    m_counted.reset();
    return expected;
}

}  // namespace kinesta
