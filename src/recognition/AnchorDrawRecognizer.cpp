#include "recognition/AnchorDrawRecognizer.h"

#include "recognition/AnchorDrawPatternClassifier.h"

namespace kinesta {
namespace {

/// A longer path is no pattern. Bounds the memory for a finger that wanders about for minutes; 1,000 frames a second do
/// not reach it within the time of a drawing.
constexpr std::size_t kMostPathPoints = 4096;

}  // namespace

AnchorDrawRecognizer::AnchorDrawRecognizer(const Limits& limits) : m_limits(limits) { m_path.reserve(kMostPathPoints); }

std::optional<AnchorDrawEvent> AnchorDrawRecognizer::process(std::span<const TouchSample> samples, Seconds timestamp) {
    const bool isDrawing = m_anchor && m_anchor->drawingFinger;
    if (samples.size() == 1) {
        if (isDrawing)
            return endDrawing(samples[0], timestamp);
        trackAnchor(samples[0], timestamp);
    } else if (samples.size() == 2 && m_anchor) {
        if (isDrawing)
            trackDrawing(samples[0], samples[1]);
        else
            trackLanding(samples[0], samples[1], timestamp);
    } else {
        reset();
    }
    return std::nullopt;
}

std::optional<AnchorCorner> AnchorDrawRecognizer::cornerOf(Point point) const {
    const double near = m_limits.cornerInset;
    const double far = 1 - near;
    if (point.x <= near && point.y >= far)
        return AnchorCorner::topLeft;
    if (point.x >= far && point.y >= far)
        return AnchorCorner::topRight;
    if (point.x <= near && point.y <= near)
        return AnchorCorner::bottomLeft;
    if (point.x >= far && point.y <= near)
        return AnchorCorner::bottomRight;
    return std::nullopt;
}

void AnchorDrawRecognizer::trackAnchor(const TouchSample& sample, Seconds timestamp) {
    const bool isSame = m_anchor && m_anchor->id == sample.id && !m_anchor->secondFingerArrivedTooEarly;
    if (!isSame || compareDistance(m_anchor->stablePosition, sample.position, m_limits.maximumAnchorMovement) > 0)
        startAnchor(sample, timestamp);
    else
        m_anchor->currentPosition = sample.position;
}

void AnchorDrawRecognizer::startAnchor(const TouchSample& sample, Seconds timestamp) {
    reset();
    if (const auto corner = cornerOf(sample.position))
        m_anchor = Anchor{.id = sample.id,
                          .stablePosition = sample.position,
                          .currentPosition = sample.position,
                          .stableSince = timestamp,
                          .corner = *corner};
}

void AnchorDrawRecognizer::trackLanding(const TouchSample& first, const TouchSample& second, Seconds timestamp) {
    const TouchSample& candidate = first.id == m_anchor->id ? second : first;
    if (candidate.id == m_anchor->id) {
        reset();
        return;
    }
    const bool canDraw =
        !m_anchor->secondFingerArrivedTooEarly && timestamp - m_anchor->stableSince >= m_limits.minimumAnchorDuration &&
        compareDistance(candidate.position, m_anchor->currentPosition, m_limits.minimumFingerSeparation) >= 0;
    if (!canDraw) {
        m_anchor->secondFingerArrivedTooEarly = true;
        return;
    }
    m_anchor->drawingFinger = DrawingFinger{.id = candidate.id, .beganAt = timestamp};
    m_path.assign(1, candidate.position);
}

void AnchorDrawRecognizer::trackDrawing(const TouchSample& first, const TouchSample& second) {
    DrawingFinger& finger = *m_anchor->drawingFinger;
    const bool anchorIsFirst = first.id == m_anchor->id;
    const TouchSample& anchor = anchorIsFirst ? first : second;
    const TouchSample& drawing = anchorIsFirst ? second : first;
    if (anchor.id != m_anchor->id || drawing.id != finger.id) {
        reset();
        return;
    }
    // From where it settled, unlike the anchor of a tip-tap: a drawing is long enough for the anchor to creep away.
    if (compareDistance(m_anchor->stablePosition, anchor.position, m_limits.maximumAnchorMovement) > 0)
        finger.anchorMovedTooFar = true;
    extendPath(drawing.position);
    m_anchor->currentPosition = anchor.position;
}

void AnchorDrawRecognizer::extendPath(Point point) {
    if (!(compareDistance(m_path.back(), point, m_limits.minimumSampleDistance) >= 0))
        return;
    if (m_path.size() < kMostPathPoints)
        m_path.push_back(point);
    else
        m_anchor->drawingFinger->pathIsTooLong = true;
}

std::optional<AnchorDrawEvent> AnchorDrawRecognizer::endDrawing(const TouchSample& remaining, Seconds timestamp) {
    if (remaining.id != m_anchor->id) {
        startAnchor(remaining, timestamp);
        return std::nullopt;
    }
    const DrawingFinger finger = *m_anchor->drawingFinger;
    m_anchor->drawingFinger.reset();
    m_anchor->currentPosition = remaining.position;
    const bool anchorStayed =
        !finger.anchorMovedTooFar && cornerOf(remaining.position) == m_anchor->corner &&
        compareDistance(remaining.position, m_anchor->stablePosition, m_limits.maximumAnchorMovement) <= 0;
    if (!anchorStayed || finger.pathIsTooLong || !(timestamp - finger.beganAt <= m_limits.maximumDrawDuration))
        return std::nullopt;
    const auto pattern = AnchorDrawPatternClassifier::classify(m_path);
    if (!pattern)
        return std::nullopt;
    return AnchorDrawEvent{m_anchor->corner, *pattern};
}

}  // namespace kinesta
