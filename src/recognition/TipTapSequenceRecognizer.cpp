#include "recognition/TipTapSequenceRecognizer.h"

#include <algorithm>

namespace kinesta {
namespace {

constexpr int kMostTaps = 3;

}  // namespace

TipTapSequence TipTapSequenceRecognizer::process(const TipTapEvent& event, Seconds timestamp) {
    const bool continues = m_counted && m_counted->sequence.anchorID == event.anchorID &&
                           m_counted->sequence.direction == event.direction &&
                           timestamp - m_counted->lastTapTime <= m_limits.maximumInterval;
    const int taps = continues ? std::min(m_counted->sequence.taps + 1, kMostTaps) : 1;
    m_counted = CountedTaps{{event.anchorID, event.direction, taps}, timestamp};
    return m_counted->sequence;
}

std::optional<TipTapSequence> TipTapSequenceRecognizer::finalize(const TipTapSequence& expected) {
    if (!m_counted || m_counted->sequence != expected)
        return std::nullopt;
    m_counted.reset();
    return expected;
}

}  // namespace kinesta
