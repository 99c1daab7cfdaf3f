#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <span>

#include "input/CornerPalmRejectionFilter.h"
#include "recognition/FrameRecognition.h"
#include "recognition/PhysicalClickRecognizer.h"

namespace kinesta {

/// Feeds contact frames and physical clicks to the recognizers. Frames come on the driver's thread, everything else on
/// the main thread: one lock guards every field, and every operation holds it from beginning to end. Nothing
/// outside is called with the lock held.
///
/// Rebuilding the recognizers begins a new generation. A delayed task carries the generation that it is based on;
/// a task from an older one has no effect.
class TouchFrameProcessor {
  public:
    struct CompletedClick {
        PhysicalClickSequence sequence;
        std::uint64_t generation = 0;
    };

    TouchFrameProcessor() = default;
    TouchFrameProcessor(const TouchFrameProcessor&) = delete;
    TouchFrameProcessor& operator=(const TouchFrameProcessor&) = delete;

    /// Takes one frame. `timestamp` is the driver's, `receivedAt` the uptime of the arrival, which is compared with
    /// the times of clicks.
    FrameRecognition process(std::span<const TouchSample> samples, Seconds timestamp, Uptime receivedAt);

    /// The button went down. Frames are ignored until all contacts have lifted.
    void beginPhysicalClick(Uptime receivedAt);

    /// A click that reaches stage 2 is a Force Click.
    void registerPressureStage(std::int64_t stage);

    /// The button went up. The sequence including the click, if it counts as a gesture.
    std::optional<CompletedClick> completePhysicalClick(Uptime timestamp);

    /// Ends and returns a sequence if it is still `expected` and the generation is current.
    std::optional<TapSequence> finalize(const TapSequence& expected, std::uint64_t generation);
    std::optional<TipTapSequence> finalizeTipTap(const TipTapSequence& expected, std::uint64_t generation);
    std::optional<PhysicalClickSequence> finalizePhysicalClick(const PhysicalClickSequence& expected,
                                                               std::uint64_t generation);

    bool isCurrent(std::uint64_t generation) const;

    /// How long a sequence of each kind waits for the next tap or click.
    Seconds maximumTapInterval() const;
    Seconds maximumTipTapInterval() const;
    Seconds maximumClickInterval() const;

    /// Sets the interval of taps and tip-taps. That of clicks is fixed.
    void setMaximumTapInterval(Seconds interval);

    /// If the settings change, begins a new generation and ignores frames until all contacts have lifted.
    void setCornerPalmRejection(const CornerPalmRejectionSettings& settings);

    /// Forgets contacts and sequences and begins a new generation; the settings stay.
    void reset();

  private:
    struct PendingPhysicalClick {
        int fingers = 0;
        bool reachedForceStage = false;
    };

    // With the lock held:
    void rememberContacts(std::span<const TouchSample> filtered, Uptime receivedAt);
    FrameRecognition recognize(std::span<const TouchSample> filtered, Seconds timestamp);
    void clearContactState();
    void resetRecognizers();

    mutable std::mutex m_lock;
    MultiTapRecognizer m_multiTap;
    AnchorDrawRecognizer m_anchorDraw;
    EdgeSlideRecognizer m_edgeSlide;
    TipTapRecognizer m_tipTap;
    TipTapSequenceRecognizer m_tipTapSequence;
    PhysicalClickRecognizer m_physicalClick;
    CornerPalmRejectionFilter m_cornerPalmFilter;
    std::size_t m_rawContactCount = 0;    // of the last frame, palms included
    bool m_suppressUntilRawLift = false;  // after a change of the palm settings
    std::uint64_t m_generation = 0;
    int m_activeFingerCount = 0;  // of the last frame, without palms
    // The last frame with fingers: a click is often reported when they have just lifted.
    int m_lastContactFingerCount = 0;
    Uptime m_lastContactReceivedAt = 0;
    bool m_suppressTapUntilLift = false;  // after a physical click
    std::optional<PendingPhysicalClick> m_pendingPhysicalClick;
};

}  // namespace kinesta
