#include "recognition/TipTapRecognizer.h"

#include <cmath>

namespace kinesta {

std::optional<TipTapEvent> TipTapRecognizer::process(std::span<const TouchSample> samples, Seconds timestamp) {
    const bool isTapping = m_anchor && m_anchor->tappingFinger;
    if (samples.size() == 1) {
        if (isTapping)
            return endTap(samples[0], timestamp);
        trackAnchor(samples[0], timestamp);
    } else if (samples.size() == 2 && m_anchor) {
        if (isTapping)
            trackTap(samples[0], samples[1]);
        else
            trackLanding(samples[0], samples[1], timestamp);
    } else {
        m_anchor.reset();
    }
    return std::nullopt;
}

void TipTapRecognizer::trackAnchor(const TouchSample& sample, Seconds timestamp) {
    if (!m_anchor || m_anchor->id != sample.id || m_anchor->secondFingerArrivedTooEarly) {
        startAnchor(sample, timestamp);
        return;
    }
    if (compareDistance(m_anchor->stablePosition, sample.position, m_limits.maximumAnchorMovement) > 0) {
        m_anchor->stablePosition = sample.position;
        m_anchor->stableSince = timestamp;
    }
    m_anchor->currentPosition = sample.position;
}

void TipTapRecognizer::trackLanding(const TouchSample& first, const TouchSample& second, Seconds timestamp) {
    const TouchSample& candidate = first.id == m_anchor->id ? second : first;
    if (candidate.id == m_anchor->id) {
        m_anchor.reset();
        return;
    }
    const double dx = candidate.position.x - m_anchor->currentPosition.x;
    const bool canTap = !m_anchor->secondFingerArrivedTooEarly &&
                        timestamp - m_anchor->stableSince >= m_limits.minimumAnchorDuration &&
                        std::abs(dx) >= m_limits.minimumHorizontalSeparation;
    if (!canTap) {
        m_anchor->secondFingerArrivedTooEarly = true;
        return;
    }
    m_anchor->tappingFinger = TappingFinger{.id = candidate.id,
                                            .initialPosition = candidate.position,
                                            .beganAt = timestamp,
                                            .direction = dx < 0 ? TipTapDirection::left : TipTapDirection::right};
}

void TipTapRecognizer::trackTap(const TouchSample& first, const TouchSample& second) {
    TappingFinger& finger = *m_anchor->tappingFinger;
    const bool anchorIsFirst = first.id == m_anchor->id;
    const TouchSample& anchor = anchorIsFirst ? first : second;
    const TouchSample& tapping = anchorIsFirst ? second : first;
    if (anchor.id != m_anchor->id || tapping.id != finger.id) {
        m_anchor.reset();
        return;
    }
    if (compareDistance(finger.initialPosition, tapping.position, m_limits.maximumMovement) > 0)
        finger.movedTooFar = true;
    // From frame to frame: during a tap the hand may creep, but not jump.
    if (compareDistance(m_anchor->currentPosition, anchor.position, m_limits.maximumAnchorMovement) > 0)
        finger.anchorMovedTooFar = true;
    m_anchor->currentPosition = anchor.position;
}

std::optional<TipTapEvent> TipTapRecognizer::endTap(const TouchSample& remaining, Seconds timestamp) {
    if (remaining.id != m_anchor->id) {
        startAnchor(remaining, timestamp);
        return std::nullopt;
    }
    const TappingFinger finger = *m_anchor->tappingFinger;
    m_anchor->tappingFinger.reset();
    m_anchor->currentPosition = remaining.position;
    if (finger.movedTooFar || finger.anchorMovedTooFar || !(timestamp - finger.beganAt <= m_limits.maximumTapDuration))
        return std::nullopt;
    return TipTapEvent{remaining.id, finger.direction};
}

void TipTapRecognizer::startAnchor(const TouchSample& sample, Seconds timestamp) {
    m_anchor = Anchor{.id = sample.id,
                      .stablePosition = sample.position,
                      .currentPosition = sample.position,
                      .stableSince = timestamp};
}

}  // namespace kinesta
