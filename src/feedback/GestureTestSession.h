#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "rules/RuleSelection.h"
#include "support/Published.h"

namespace kinesta {

/// Trying gestures without running actions: while active, it takes every recognized gesture and says what it was.
/// Main thread only.
class GestureTestSession {
  public:
    const Published<bool>& isActive() const { return m_isActive; }
    /// The last recognized gesture in words.
    const Published<std::optional<std::string>>& lastDetection() const { return m_lastDetection; }
    /// How many times in a row this gesture was recognized; 0 for a slide.
    const Published<std::int64_t>& consecutiveDetectionCount() const { return m_consecutiveDetectionCount; }
    /// Whether the last gesture was a slide.
    const Published<bool>& isContinuousDetection() const { return m_isContinuousDetection; }

    /// Has no effect while active.
    void begin();
    void end();

    /// Each returns whether the gesture was taken, so that no rule may run for it.
    bool interceptTap(std::int64_t fingerCount, GestureKind gesture);
    bool interceptEdgeSlide(std::int64_t fingerCount, EdgeSlideSide side, std::int64_t steps);
    bool interceptAnchorDraw(AnchorCorner corner, DrawPattern pattern);
    bool intercept(const DetectedGesture& gesture);

  private:
    void clearDetection();
    void recordDiscrete(std::string description);

    Published<bool> m_isActive{false};
    Published<std::optional<std::string>> m_lastDetection;
    Published<std::int64_t> m_consecutiveDetectionCount{0};
    Published<bool> m_isContinuousDetection{false};
};

}  // namespace kinesta
