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

/// Recognizes taps of two or more fingers and counts those in quick succession. Reports after every tap; the caller
/// waits for the next. Not thread-safe.
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

    /// Takes one frame. Returns the sequence including the tap if all fingers have just lifted from one.
    std::optional<TapSequence> process(std::span<const TouchSample> samples, Seconds timestamp);

    /// Ends and returns the sequence if it is still `expected`; otherwise changes nothing.
    std::optional<TapSequence> finalize(const TapSequence& expected);

    /// Abandons the tap in progress. The sequence so far stays.
    void cancelCurrentContact() { m_contact.reset(); }

  private:
    /// From the first finger's touch to the last one's lift.
    struct Contact {
        Seconds beganAt = 0;
        int maximumFingerCount = 0;
        bool movedTooFar = false;
        TouchSamples initialPositions = {};  // the first sample of each finger
    };
    struct CountedTaps {
        TapSequence sequence;
        Seconds lastTapTime = 0;
    };

    void trackContact(std::span<const TouchSample> samples);
    bool staysPut(const TouchSample& sample);
    std::optional<TapSequence> endContact(Seconds timestamp);

    Limits m_limits;
    std::optional<Contact> m_contact;
    std::optional<CountedTaps> m_counted;
};

}  // namespace kinesta
