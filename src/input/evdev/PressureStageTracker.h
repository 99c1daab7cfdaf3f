#pragma once

#include <cstdint>
#include <optional>

namespace kinesta {

/// Turns the pressure that a pad measures into the stages of a click: 1 soft, 2 forced. A press starts at stage 1.
class PressureStageTracker {
  public:
    /// Fractions of the pad's pressure range. The click itself comes at roughly a quarter of it on pads that measure
    /// force; the gap between the two keeps a finger at the threshold from flickering.
    struct Limits {
        /// From here on the click is forced.
        double forcedFrom = 0.60;
        /// Below this a forced click is soft again.
        double softBelow = 0.45;
    };

    PressureStageTracker() = default;
    explicit PressureStageTracker(Limits limits) : m_limits(limits) {}

    /// Takes one report: whether a button is held, and the pressure of the strongest contact as a fraction of the
    /// range. Returns the stage if it has changed while the button is held.
    std::optional<std::int64_t> process(bool isButtonDown, double pressure);

  private:
    Limits m_limits;
    bool m_isForced = false;
};

}  // namespace kinesta
