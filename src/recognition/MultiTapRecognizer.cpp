#include "recognition/MultiTapRecognizer.h"

#include <algorithm>
#include <cassert>

#include "input/ContactIdSet.h"

namespace kinesta {
namespace {

constexpr int kLeastFingers = 2;  // a tap of one finger belongs to the system
constexpr int kMostTaps = 3;

/// A contact of more fingers is no tap. Bounds the memory for a driver that gives every finger a new id in every frame
/// and never reports a lift.
constexpr std::size_t kMostTrackedFingers = 4096;

}  // namespace

std::optional<TapSequence> MultiTapRecognizer::process(std::span<const TouchSample> samples, Seconds timestamp) {
    if (samples.empty())
        return m_contact ? endContact(timestamp) : std::nullopt;
    trackContact(samples, timestamp);
    return std::nullopt;
}

void MultiTapRecognizer::trackContact(std::span<const TouchSample> samples, Seconds timestamp) {
    if (!m_contact) {
        assert(ContactIdSet(samples).size() == samples.size() && "two contacts of a frame share an id");
        m_contact = Contact{.beganAt = timestamp};
    }
    m_contact->maximumFingerCount = std::max(m_contact->maximumFingerCount, static_cast<int>(samples.size()));
    if (!m_contact->movedTooFar)
        trackMovement(samples);
}

void MultiTapRecognizer::trackMovement(std::span<const TouchSample> samples) {
    TouchSamples& initial = m_contact->initialPositions;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const TouchSample& sample = samples[i];
        const auto isSameFinger = [&sample](const TouchSample& other) { return other.id == sample.id; };
        // Most drivers list the fingers in the same order in every frame.
        const TouchSample* first = i < initial.size() && isSameFinger(initial[i])
                                       ? &initial[i]
                                       : std::find_if(initial.begin(), initial.end(), isSameFinger);
        const bool isKnown = first != initial.end();
        if (isKnown ? compareDistance(first->position, sample.position, m_limits.maximumMovement) > 0
                    : initial.size() == kMostTrackedFingers) {
            m_contact->movedTooFar = true;
            initial.clear();
            return;
        }
        if (!isKnown)
            initial.push_back(sample);
    }
}

std::optional<TapSequence> MultiTapRecognizer::endContact(Seconds timestamp) {
    const Seconds duration = timestamp - m_contact->beganAt;
    const int fingers = m_contact->maximumFingerCount;
    const bool movedTooFar = m_contact->movedTooFar;
    m_contact.reset();
    if (duration > m_limits.maximumTapDuration || movedTooFar || fingers < kLeastFingers) {
        m_counted.reset();
        return std::nullopt;
    }
    const bool continues = m_counted && m_counted->sequence.fingers == fingers &&
                           timestamp - m_counted->lastTapTime <= m_limits.maximumInterval;
    const int taps = continues ? std::min(m_counted->sequence.taps + 1, kMostTaps) : 1;
    m_counted = CountedTaps{{fingers, taps}, timestamp};
    return m_counted->sequence;
}

std::optional<TapSequence> MultiTapRecognizer::finalize(const TapSequence& expected) {
    if (!m_counted || m_counted->sequence != expected)
        return std::nullopt;
    m_counted.reset();
    return expected;
}

}  // namespace kinesta
