#pragma once

#include <optional>
#include <span>
#include <vector>

#include "input/TouchSample.h"
#include "rules/GestureQualifiers.h"
#include "support/Seconds.h"

namespace kinesta {

/// A figure drawn by a second finger while the first rested in a corner.
struct AnchorDrawEvent {
    AnchorCorner corner = AnchorCorner::topLeft;
    DrawPattern pattern = DrawPattern::lineUp;

    friend bool operator==(const AnchorDrawEvent&, const AnchorDrawEvent&) = default;
};

/// Recognizes corner hold-and-draw: one finger, the anchor, rests in a corner while a second one draws.
/// Not thread-safe.
class AnchorDrawRecognizer {
  public:
    struct Limits {
        Seconds minimumAnchorDuration = 0.18;   // stillness of the anchor before the second finger lands
        Seconds maximumDrawDuration = 3.0;      // of the drawing finger on the pad
        double cornerInset = 0.2;               // side of the corner squares; normalized units, as all below
        double maximumAnchorMovement = 0.04;    // from where the anchor settled
        double minimumFingerSeparation = 0.08;  // of the fingers when the second one lands
        double minimumSampleDistance = 0.004;   // of neighbouring points of the path
    };

    AnchorDrawRecognizer() : AnchorDrawRecognizer(Limits()) {}
    explicit AnchorDrawRecognizer(const Limits& limits);

    /// Takes one frame. Returns an event if the drawing finger has just lifted and its path is a pattern.
    std::optional<AnchorDrawEvent> process(std::span<const TouchSample> samples, Seconds timestamp);

    void reset() { m_anchor.reset(); }

  private:
    struct DrawingFinger {
        ContactId id = 0;
        Seconds beganAt = 0;
        bool anchorMovedTooFar = false;
        bool pathIsTooLong = false;
    };
    struct Anchor {
        ContactId id = 0;
        Point stablePosition;
        Point currentPosition;
        Seconds stableSince = 0;
        AnchorCorner corner = AnchorCorner::topLeft;
        /// A second finger landed that cannot draw. The next frame with one finger starts a new anchor.
        bool secondFingerArrivedTooEarly = false;
        std::optional<DrawingFinger> drawingFinger = {};
    };

    std::optional<AnchorCorner> cornerOf(Point point) const;
    void trackAnchor(const TouchSample& sample, Seconds timestamp);
    void startAnchor(const TouchSample& sample, Seconds timestamp);
    void trackLanding(const TouchSample& first, const TouchSample& second, Seconds timestamp);
    void trackDrawing(const TouchSample& first, const TouchSample& second);
    void extendPath(Point point);
    std::optional<AnchorDrawEvent> endDrawing(const TouchSample& remaining, Seconds timestamp);

    Limits m_limits;
    std::optional<Anchor> m_anchor;
    std::vector<Point> m_path;  // of the drawing finger; reserved once, so that drawing allocates nothing
};

}  // namespace kinesta
