#pragma once

#include <optional>

#include "recognition/TipTapRecognizer.h"

namespace kinesta {

/// Tip-taps on the same side of the same anchor in quick succession.
struct TipTapSequence {
    ContactId anchorID = 0;
    TipTapDirection direction = TipTapDirection::left;
    /// 1, 2 or 3; further taps leave it at 3.
    int taps = 0;

    friend bool operator==(const TipTapSequence&, const TipTapSequence&) = default;
};

/// Counts tip-taps in quick succession. Not thread-safe.
class TipTapSequenceRecognizer {
  public:
    struct Limits {
        Seconds maximumInterval = 0.25;  // from lift to lift of the tapping finger within a sequence
    };

    TipTapSequenceRecognizer() = default;
    explicit TipTapSequenceRecognizer(const Limits& limits) : m_limits(limits) {}

    Seconds maximumInterval() const { return m_limits.maximumInterval; }
    void setMaximumInterval(Seconds interval) { m_limits.maximumInterval = interval; }

    /// The sequence including this event.
    TipTapSequence process(const TipTapEvent& event, Seconds timestamp);

    /// Ends and returns the sequence if it is still `expected`; otherwise changes nothing.
    std::optional<TipTapSequence> finalize(const TipTapSequence& expected);

    void reset() { m_counted.reset(); }

  private:
    struct CountedTaps {
        TipTapSequence sequence;
        Seconds lastTapTime = 0;
    };

    Limits m_limits;
    std::optional<CountedTaps> m_counted;
};

}  // namespace kinesta
