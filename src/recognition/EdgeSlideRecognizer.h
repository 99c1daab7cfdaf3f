#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "input/ContactIdSet.h"
#include "rules/GestureQualifiers.h"

namespace kinesta {

/// The whole steps of a slide in one frame.
struct EdgeSlideEvent {
    /// 2 to 5.
    int fingers = 0;
    /// Left or right.
    EdgeSlideSide side = EdgeSlideSide::left;
    /// Never 0; positive upward.
    std::int64_t steps = 0;

    friend bool operator==(const EdgeSlideEvent&, const EdgeSlideEvent&) = default;
};

/// Recognizes vertical slides of two to five fingers along the left or right edge, step by step while they move.
/// Not thread-safe.
class EdgeSlideRecognizer {
  public:
    /// All in normalized units.
    struct Limits {
        double edgeInset = 0.28;          // from the edge, where every finger must start
        double continuationInset = 0.38;  // from the edge, where every finger must stay: a slide may drift a little
        double stepDistance = 0.025;      // vertical travel of one step
    };

    EdgeSlideRecognizer() = default;
    explicit EdgeSlideRecognizer(const Limits& limits) : m_limits(limits) {}

    /// Takes one frame. Returns an event if the fingers have moved by a step or more since the last one.
    std::optional<EdgeSlideEvent> process(std::span<const TouchSample> samples);

    void reset() { m_slide.reset(); }

  private:
    struct Slide {
        EdgeSlideSide edge = EdgeSlideSide::left;
        ContactIdSet fingerIDs;
        double lastAverageY = 0;
        double accumulatedMovement = 0;  // signed travel not yet reported
    };

    std::optional<EdgeSlideSide> startingSide(std::span<const TouchSample> samples) const;
    void start(EdgeSlideSide side, std::span<const TouchSample> samples);
    bool continues(std::span<const TouchSample> samples) const;
    std::optional<EdgeSlideEvent> advance(std::span<const TouchSample> samples);

    Limits m_limits;
    std::optional<Slide> m_slide;
};

}  // namespace kinesta
