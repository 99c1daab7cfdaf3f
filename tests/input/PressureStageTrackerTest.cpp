#include "input/PressureStageTracker.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace kinesta {
namespace {

TEST(PressureStageTracker, ChangesAtItsLimitsAndOnlyWhileTheButtonIsHeld) {
    PressureStageTracker tracker({.forcedFrom = 0.6, .softBelow = 0.4});
    struct Report {
        bool isButtonDown;
        double pressure;
        std::int64_t stage;  // 0: no change
    };
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Report> reports{
        {false, 1.0, 0}, {true, 0.5999, 0}, {true, 0.6, 2}, {true, 1.0, 0},     {true, 0.4, 0},
        {true, 0.5, 0},  {true, 0.3999, 1}, {true, 0.5, 0}, {true, 0.6, 2},     {false, 0.9, 0},
        {true, 0.5, 0},  {false, 0.0, 0},   {true, 0.9, 2}, {true, nothing, 0}, {true, 0.0, 1},
    };
    for (std::size_t i = 0; i < reports.size(); ++i)
        EXPECT_EQ(tracker.process(reports[i].isButtonDown, reports[i].pressure).value_or(0), reports[i].stage) << i;
}

}  // namespace
}  // namespace kinesta
