#include "recognition/MultiTapRecognizer.h"

#include <algorithm>
#include <cassert>

#include "input/ContactIdSet.h"

namespace kinesta {
namespace {

constexpr int kLeastTapFingers = 2;  // a tap of one finger belongs to the system
constexpr int kMostTaps = 3;

/// A contact of more fingers is no tap. Bounds the memory for a driver that gives every finger a new id in every frame
/// and never reports a lift.
constexpr std::size_t kMostTrackedFingers = 4096;

}  // namespace

std::optional<TapSequence> MultiTapRecognizer::process(std::span<const TouchSample> samples, Seconds timestamp) {
    if (samples.empty())
        return m_contact ? endContact(timestamp) : std::nullopt;
    if (!m_contact) {
        assert(ContactIdSet(samples).size() == samples.size() && "two contacts of a frame share an id");
        m_contact = Contact{.beganAt = timestamp};
    }
    trackContact(samples);
    return std::nullopt;
}

void MultiTapRecognizer::trackContact(std::span<const TouchSample> samples) {
    Contact& contact = *m_contact;
    contact.maximumFingerCount = std::max(contact.maximumFingerCount, static_cast<int>(samples.size()));
    if (contact.movedTooFar)
        return;
    const TouchSamples& initial = contact.initialPositions;
    // Most drivers list the fingers in the same order in every frame: skips those that have hardly moved.
    const auto skipped =
        std::mismatch(samples.begin(), samples.end(), initial.begin(), initial.end(),
                      [limit = m_limits.maximumMovement](const auto& sample, const auto& first) {
                          return first.id == sample.id && isClearlyCloser(first.position, sample.position, limit);
                      });
    for (auto sample = skipped.first; sample != samples.end(); ++sample) {
        if (staysPut(*sample))
            continue;
        contact.movedTooFar = true;
        contact.initialPositions.clear();
        return;
    }
}

/// Remembers where a new finger is first seen.
bool MultiTapRecognizer::staysPut(const TouchSample& sample) {
    TouchSamples& initial = m_contact->initialPositions;
    for (const TouchSample& first : initial)
        if (first.id == sample.id)
            return !(compareDistance(first.position, sample.position, m_limits.maximumMovement) > 0);
    if (initial.size() == kMostTrackedFingers)
        return false;
    initial.push_back(sample);
    return true;
}

std::optional<TapSequence> MultiTapRecognizer::endContact(Seconds timestamp) {
    const Seconds duration = timestamp - m_contact->beganAt;
    const int fingers = m_contact->maximumFingerCount;
    const bool movedTooFar = m_contact->movedTooFar;
    m_contact.reset();
    if (duration > m_limits.maximumTapDuration || movedTooFar || fingers < kLeastTapFingers) {
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
