#include "input/evdev/PressureStageTracker.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>
#include <vector>

namespace kinesta {
namespace {

TEST(PressureStageTracker, ChangesAtItsLimitsAndOnlyWhileTheButtonIsHeld) {
    PressureStageTracker tracker({.forcedFrom = 0.6, .softBelow = 0.4});
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    // Whether the button is down, the pressure, and the stage, or 0 for no change.
    const std::vector<std::tuple<bool, double, std::int64_t>> reports{
        {false, 1.0, 0}, {true, 0.5999, 0}, {true, 0.6, 2}, {true, 1.0, 0},     {true, 0.4, 0},
        {true, 0.5, 0},  {true, 0.3999, 1}, {true, 0.5, 0}, {true, 0.6, 2},     {false, 0.9, 0},
        {true, 0.5, 0},  {false, 0.0, 0},   {true, 0.9, 2}, {true, nothing, 0}, {true, 0.0, 1},
    };
    for (const auto& [isButtonDown, pressure, stage] : reports)
        EXPECT_EQ(tracker.process(isButtonDown, pressure).value_or(0), stage) << pressure;
}

}  // namespace
}  // namespace kinesta
