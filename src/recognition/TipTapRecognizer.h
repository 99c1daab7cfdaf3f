#pragma once

#include <optional>
#include <span>

#include "input/TouchSample.h"
#include "rules/GestureQualifiers.h"
#include "support/Seconds.h"

namespace kinesta {

/// One tap of a second finger beside a resting one.
struct TipTapEvent {
    ContactId anchorID = 0;
    TipTapDirection direction = TipTapDirection::left;

    friend bool operator==(const TipTapEvent&, const TipTapEvent&) = default;
};

/// Recognizes tip-taps: one finger, the anchor, rests while a second one taps on its left or right.
/// Not thread-safe.
class TipTapRecognizer {
  public:
    struct Limits {
        Seconds minimumAnchorDuration = 0.12;        // stillness of the anchor before the second finger lands
        Seconds maximumTapDuration = 0.24;           // of the second finger on the pad
        double minimumHorizontalSeparation = 0.035;  // of the fingers at the landing; normalized units
        double maximumMovement = 0.055;              // of the tapping finger from where it landed
        double maximumAnchorMovement = 0.045;        // alone: from where it settled; during a tap: from frame to frame
    };

    TipTapRecognizer() = default;
    explicit TipTapRecognizer(const Limits& limits) : m_limits(limits) {}

    /// Takes one frame. Returns an event if the tapping finger has just lifted in time.
    std::optional<TipTapEvent> process(std::span<const TouchSample> samples, Seconds timestamp);

  private:
    struct TappingFinger {
        ContactId id = 0;
        Point initialPosition;
        Seconds beganAt = 0;
        TipTapDirection direction = TipTapDirection::left;
        bool movedTooFar = false;
        bool anchorMovedTooFar = false;
    };
    struct Anchor {
        ContactId id = 0;
        Point stablePosition;
        Point currentPosition;
        Seconds stableSince = 0;
        /// A second finger landed that cannot tap. The next frame with one finger starts a new anchor.
        bool secondFingerArrivedTooEarly = false;
        std::optional<TappingFinger> tappingFinger = {};
    };

    void trackAnchor(const TouchSample& sample, Seconds timestamp);
    void trackLanding(const TouchSample& first, const TouchSample& second, Seconds timestamp);
    void trackTap(const TouchSample& first, const TouchSample& second);
    std::optional<TipTapEvent> endTap(const TouchSample& remaining, Seconds timestamp);
    void startAnchor(const TouchSample& sample, Seconds timestamp);

    Limits m_limits;
    std::optional<Anchor> m_anchor;
};

}  // namespace kinesta
