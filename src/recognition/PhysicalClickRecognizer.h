#pragma once

#include <optional>

#include "rules/GestureQualifiers.h"
#include "support/Seconds.h"

namespace kinesta {

/// Physical clicks of the same number of fingers in quick succession.
struct PhysicalClickSequence {
    /// Contacts on the pad at the click: 2 to 5.
    int fingers = 0;
    /// 1, 2 or 3; further clicks leave it at 3.
    int clicks = 0;
    /// Absent if the clicks differ.
    std::optional<PhysicalClickPressure> pressure;

    friend bool operator==(const PhysicalClickSequence&, const PhysicalClickSequence&) = default;
};

/// Counts physical clicks in quick succession. Not thread-safe.
class PhysicalClickRecognizer {
  public:
    static constexpr int minimumFingers = 2;  // a click of one finger is an ordinary click
    static constexpr int maximumFingers = 5;

    static constexpr bool acceptsFingers(int fingers) { return fingers >= minimumFingers && fingers <= maximumFingers; }

    struct Limits {
        Seconds maximumInterval = 0.25;  // from release to release within a sequence
    };

    PhysicalClickRecognizer() = default;
    explicit PhysicalClickRecognizer(const Limits& limits) : m_limits(limits) {}

    Seconds maximumInterval() const { return m_limits.maximumInterval; }

    /// Takes one completed click and returns the sequence including it. A click with another number of fingers ends the
    /// sequence and returns nothing.
    std::optional<PhysicalClickSequence> process(int fingers, PhysicalClickPressure pressure, Seconds timestamp);

    /// Ends and returns the sequence if it is still `expected`; otherwise changes nothing.
    std::optional<PhysicalClickSequence> finalize(const PhysicalClickSequence& expected);

    void reset() { m_counted.reset(); }

  private:
    struct CountedClicks {
        PhysicalClickSequence sequence;
        Seconds lastClickTime = 0;
    };

    Limits m_limits;
    std::optional<CountedClicks> m_counted;
};

}  // namespace kinesta
