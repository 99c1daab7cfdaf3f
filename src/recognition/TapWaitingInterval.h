#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/Seconds.h"

namespace kinesta {

/// How long a tap waits for another one to follow it: a setting. The raw values, in milliseconds, are persisted.
enum class TapWaitingInterval : std::int16_t {
    veryShort = 150,
    shortWait = 200,
    standard = 250,
    longWait = 300,
    veryLong = 400,
};

inline constexpr std::array kTapWaitingIntervals{TapWaitingInterval::veryShort, TapWaitingInterval::shortWait,
                                                 TapWaitingInterval::standard, TapWaitingInterval::longWait,
                                                 TapWaitingInterval::veryLong};

inline constexpr TapWaitingInterval kDefaultTapWaitingInterval = TapWaitingInterval::standard;
inline constexpr std::string_view kTapWaitingIntervalStorageKey = "tapWaitingInterval.v1";

constexpr std::int64_t milliseconds(TapWaitingInterval interval) { return static_cast<std::int64_t>(interval); }

constexpr Seconds seconds(TapWaitingInterval interval) { return static_cast<Seconds>(milliseconds(interval)) / 1000; }

/// "250 ms".
inline std::string title(TapWaitingInterval interval) { return std::to_string(milliseconds(interval)) + " ms"; }

/// The interval of so many milliseconds, or nothing if it is none of the five.
constexpr std::optional<TapWaitingInterval> tapWaitingInterval(std::int64_t milliseconds) {
    for (const TapWaitingInterval interval : kTapWaitingIntervals)
        if (kinesta::milliseconds(interval) == milliseconds)
            return interval;
    return std::nullopt;
}

}  // namespace kinesta
