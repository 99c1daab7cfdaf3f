#include "recognition/MultiTapRecognizer.h"

#include <algorithm>
#include <cassert>

#include "input/ContactIdSet.h"

namespace kinesta {
namespace {

constexpr int kLeastFingers = 2;  // one finger's tap is the system's own
constexpr int kMostTaps = 3;

/// A contact that meets more fingers than this is no tap. A driver that gives every finger a new id in every frame
/// and never lifts would otherwise fill the memory.
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
    // Nothing takes the flag back before the lift, so that there is nothing left to measure.
    if (!m_contact->movedTooFar)
        trackMovement(samples);
}

void MultiTapRecognizer::trackMovement(std::span<const TouchSample> samples) {
    // Most frames list the same fingers in the same order as the first one.
    const std::span<const TouchSample> initial = m_contact->initialPositions;
    const std::size_t inOrder = std::min(initial.size(), samples.size());
    std::size_t i = 0;
    for (; i < inOrder && initial[i].id == samples[i].id; ++i) {
        if (hasMovedTooFar(initial[i], samples[i])) {
            m_contact->giveUp();
            return;
        }
    }
    for (; i < samples.size() && !m_contact->movedTooFar; ++i)
        trackOutOfOrder(samples[i]);
}

void MultiTapRecognizer::trackOutOfOrder(const TouchSample& sample) {
    TouchSamples& initial = m_contact->initialPositions;
    const auto* first =
        std::find_if(initial.begin(), initial.end(), [&](const auto& known) { return known.id == sample.id; });
    const bool isKnown = first != initial.end();
    if (isKnown ? hasMovedTooFar(*first, sample) : initial.size() == kMostTrackedFingers)
        m_contact->giveUp();
    else if (!isKnown)
        initial.push_back(sample);
}

bool MultiTapRecognizer::hasMovedTooFar(const TouchSample& first, const TouchSample& now) const {
    return compareDistance(first.position, now.position, m_limits.maximumMovement) > 0;
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
