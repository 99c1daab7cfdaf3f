#pragma once

#include <optional>
#include <span>

#include "input/TouchSample.h"
#include "support/Seconds.h"

namespace kinesta {

/// Taps of the same number of fingers in quick succession.
struct TapSequence {
    /// The most fingers that touched at once: 2 or more.
    int fingers = 0;
    /// 1, 2 or 3; further taps leave it at 3.
    int taps = 0;

    friend bool operator==(const TapSequence&, const TapSequence&) = default;
};

/// Recognizes taps of two or more fingers and counts those that follow each other. It reports after every tap;
/// whether to wait for another is the caller's business. Not thread-safe.
class MultiTapRecognizer {
  public:
    struct Limits {
        Seconds maximumTapDuration = 0.24;  // from the first finger's touch to the last one's lift
        Seconds maximumInterval = 0.25;     // from lift to lift within a sequence
        double maximumMovement = 0.055;     // of each finger from where it touched; normalized units
    };

    MultiTapRecognizer() = default;
    explicit MultiTapRecognizer(const Limits& limits) : m_limits(limits) {}

    Seconds maximumInterval() const { return m_limits.maximumInterval; }
    void setMaximumInterval(Seconds interval) { m_limits.maximumInterval = interval; }

    /// Takes one frame. The sequence including the tap, if the lift of all fingers has just completed one.
    std::optional<TapSequence> process(std::span<const TouchSample> samples, Seconds timestamp);

    /// Ends the sequence and gives it back if it is still `expected`; otherwise nothing changes.
    std::optional<TapSequence> finalize(const TapSequence& expected);

    /// Makes the fingers on the pad count as not there. The sequence so far stays.
    void cancelCurrentContact() { m_contact.reset(); }

  private:
    /// From the first finger's touch to the last one's lift.
    struct Contact {
        Seconds beganAt = 0;
        int maximumFingerCount = 0;
        bool movedTooFar = false;
        TouchSamples initialPositions = {};  // the first sample of each finger, in the order of their coming

        /// Makes it no tap; where its fingers came down is of no interest any more.
        void giveUp() {
            movedTooFar = true;
            initialPositions.clear();
        }
    };
    struct CountedTaps {
        TapSequence sequence;
        Seconds lastTapTime = 0;
    };

    void trackContact(std::span<const TouchSample> samples, Seconds timestamp);
    void trackMovement(std::span<const TouchSample> samples);
    void trackOutOfOrder(const TouchSample& sample);
    bool hasMovedTooFar(const TouchSample& first, const TouchSample& now) const;
    std::optional<TapSequence> endContact(Seconds timestamp);

    Limits m_limits;
    std::optional<Contact> m_contact;
    std::optional<CountedTaps> m_counted;
};

}  // namespace kinesta
