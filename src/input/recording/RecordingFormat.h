#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "support/Seconds.h"

namespace kinesta {

/// Shared by the reader and the writer of Kinesta's own recordings.
struct RecordingFormat {
    static constexpr int kVersion = 1;

    /// The limit of times in both directions: they must fit 64-bit nanoseconds.
    static constexpr Seconds kLatestTime = 9.2e9;

    static bool isTime(Seconds time) { return std::abs(time) <= kLatestTime; }
};

/// Checks that the times of a recording's events never go back.
class RecordingTimeOrder {
  public:
    /// Takes the next event's time. Returns what is wrong with it, if anything.
    std::optional<std::string> take(Seconds time);

  private:
    Seconds m_last = -std::numeric_limits<Seconds>::infinity();
};

}  // namespace kinesta
