#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "input/SettingsKeys.h"
#include "support/Seconds.h"

namespace kinesta {

/// How long a tap waits for another one to follow it: a setting with five values.
class TapWaitingInterval {
  public:
    /// In milliseconds, as stored.
    enum Case : std::int16_t { veryShort = 150, shortWait = 200, standard = 250, longWait = 300, veryLong = 400 };

    static constexpr std::array allCases{veryShort, shortWait, standard, longWait, veryLong};
    static constexpr Case defaultValue = standard;
    static constexpr std::string_view storageKey = SettingsKeys::tapWaitingInterval;

    // Converts implicitly: a case is an interval.
    constexpr TapWaitingInterval(Case value = defaultValue) : m_case(value) {}

    /// The interval of so many milliseconds, or nothing if it is none of the five.
    static constexpr std::optional<TapWaitingInterval> fromRawValue(std::int64_t milliseconds) {
        for (const Case value : allCases)
            if (value == milliseconds)
                return TapWaitingInterval(value);
        return std::nullopt;
    }

    constexpr std::int64_t rawValue() const { return m_case; }
    constexpr Seconds seconds() const { return static_cast<Seconds>(m_case) / 1000; }
    /// "250 ms".
    std::string title() const { return std::to_string(m_case) + " ms"; }

    friend bool operator==(const TapWaitingInterval&, const TapWaitingInterval&) = default;

  private:
    Case m_case;
};

}  // namespace kinesta
