#include "recognition/EdgeSlideRecognizer.h"

#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

constexpr std::size_t kLeastFingers = 2;
constexpr std::size_t kMostFingers = 5;

double averageY(std::span<const TouchSample> samples) {
    double sum = 0;
    for (const TouchSample& sample : samples)
        sum += sample.position.y;
    return sum / static_cast<double>(samples.size());
}

}  // namespace

std::optional<EdgeSlideEvent> EdgeSlideRecognizer::process(std::span<const TouchSample> samples) {
    if (!m_slide) {
        if (const auto side = startingSide(samples))
            start(*side, samples);
        return std::nullopt;
    }
    if (!continues(samples)) {
        reset();
        return std::nullopt;
    }
    return advance(samples);
}

std::optional<EdgeSlideSide> EdgeSlideRecognizer::startingSide(std::span<const TouchSample> samples) const {
    if (samples.size() < kLeastFingers || samples.size() > kMostFingers)
        return std::nullopt;
    const auto isLeft = [&](const TouchSample& sample) { return sample.position.x <= m_limits.edgeInset; };
    const auto isRight = [&](const TouchSample& sample) { return sample.position.x >= 1 - m_limits.edgeInset; };
    if (isLeft(samples[0]) && std::all_of(samples.begin(), samples.end(), isLeft))
        return EdgeSlideSide::left;
    if (isRight(samples[0]) && std::all_of(samples.begin(), samples.end(), isRight))
        return EdgeSlideSide::right;
    return std::nullopt;
}

void EdgeSlideRecognizer::start(EdgeSlideSide side, std::span<const TouchSample> samples) {
    const ContactIdSet fingerIDs(samples);
    if (fingerIDs.size() == samples.size())  // else two contacts share an id and cannot be followed
        m_slide = Slide{.edge = side, .fingerIDs = fingerIDs, .lastAverageY = averageY(samples)};
}

bool EdgeSlideRecognizer::continues(std::span<const TouchSample> samples) const {
    const auto hasLeft = [&](const TouchSample& sample) {
        return m_slide->edge == EdgeSlideSide::left ? sample.position.x > m_limits.continuationInset
                                                    : sample.position.x < 1 - m_limits.continuationInset;
    };
    return samples.size() == m_slide->fingerIDs.size() && m_slide->fingerIDs.isSetOf(samples) &&
           std::none_of(samples.begin(), samples.end(), hasLeft);
}

std::optional<EdgeSlideEvent> EdgeSlideRecognizer::advance(std::span<const TouchSample> samples) {
    const double average = averageY(samples);
    m_slide->accumulatedMovement += average - m_slide->lastAverageY;
    m_slide->lastAverageY = average;
    const double steps = std::trunc(m_slide->accumulatedMovement / m_limits.stepDistance);
    if (steps == 0)
        return std::nullopt;
    if (!(std::abs(steps) < 0x1p63)) {  // the coordinates are wrong: no finger moves that far
        reset();
        return std::nullopt;
    }
    m_slide->accumulatedMovement -= steps * m_limits.stepDistance;
    return EdgeSlideEvent{static_cast<int>(samples.size()), m_slide->edge, static_cast<std::int64_t>(steps)};
}

}  // namespace kinesta
