#include "feedback/GestureTestSession.h"

#include <cstdlib>
#include <limits>
#include <utility>

#include "rules/GestureDescription.h"
#include "support/Translation.h"

namespace kinesta {

void GestureTestSession::begin() {
    if (m_isActive.value())
        return;
    clearDetection();
    m_isActive.set(true);
}

void GestureTestSession::end() {
    m_isActive.set(false);
    clearDetection();
}

bool GestureTestSession::interceptTap(std::int64_t fingerCount, GestureKind gesture) {
    if (!m_isActive.value())
        return false;
    recordDiscrete(usesFingerCount(gesture) ? describe(DetectedTap{fingerCount, gesture}) : translated(title(gesture)));
    return true;
}

bool GestureTestSession::interceptEdgeSlide(std::int64_t fingerCount, EdgeSlideSide side, std::int64_t steps) {
    if (!m_isActive.value())
        return false;
    m_lastDetection.set(describe(DetectedEdgeSlide{fingerCount, side, steps}));
    m_consecutiveDetectionCount.set(0);
    m_isContinuousDetection.set(true);
    return true;
}

bool GestureTestSession::interceptAnchorDraw(AnchorCorner corner, DrawPattern pattern) {
    if (!m_isActive.value())
        return false;
    recordDiscrete(translated(title(corner)) + " · " + translated(title(pattern)));
    return true;
}

bool GestureTestSession::intercept(const DetectedGesture& gesture) {
    if (const auto* tap = std::get_if<DetectedTap>(&gesture))
        return interceptTap(tap->fingerCount, tap->gesture);
    if (const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture))
        return interceptEdgeSlide(slide->fingerCount, slide->side, slide->steps);
    const auto& draw = std::get<DetectedAnchorDraw>(gesture);
    return interceptAnchorDraw(draw.corner, draw.pattern);
}

void GestureTestSession::clearDetection() {
    m_lastDetection.set(std::nullopt);
    m_consecutiveDetectionCount.set(0);
    m_isContinuousDetection.set(false);
}

void GestureTestSession::recordDiscrete(std::string description) {
    const bool isRepeated = !m_isContinuousDetection.value() && m_lastDetection.value() == description;
    const std::int64_t before = isRepeated ? m_consecutiveDetectionCount.value() : 0;
    if (before == std::numeric_limits<std::int64_t>::max())
        std::abort();
    m_consecutiveDetectionCount.set(before + 1);
    m_isContinuousDetection.set(false);
    m_lastDetection.set(std::move(description));
}

}  // namespace kinesta
