#pragma once

#include <cstdint>
#include <optional>

#include "recognition/AnchorDrawRecognizer.h"
#include "recognition/EdgeSlideRecognizer.h"
#include "recognition/MultiTapRecognizer.h"
#include "recognition/TipTapSequenceRecognizer.h"

namespace kinesta {

/// The results of one contact frame. Several may come at once; none excludes another.
struct FrameRecognition {
    static const FrameRecognition empty;

    /// The processor's generation at the frame; 0 for a frame that no recognizer saw.
    std::uint64_t generation = 0;
    std::optional<AnchorDrawEvent> anchorDraw;
    std::optional<EdgeSlideEvent> edgeSlide;
    /// The sequence that has just grown; it may still grow.
    std::optional<TipTapSequence> tipTapSequence;
    /// The sequence that has just grown; it may still grow.
    std::optional<TapSequence> tapSequence;

    bool isEmpty() const { return !anchorDraw && !edgeSlide && !tipTapSequence && !tapSequence; }

    friend bool operator==(const FrameRecognition&, const FrameRecognition&) = default;
};

inline const FrameRecognition FrameRecognition::empty;

}  // namespace kinesta
