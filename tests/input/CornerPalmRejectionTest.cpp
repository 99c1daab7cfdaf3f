#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "input/CornerPalmRejectionFilter.h"

namespace kinesta::testing {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(CornerPalmRejectionSettings, ClampsTheSensitivityAndDerivesTheInset) {
    const auto inset = [](double sensitivity) { return CornerPalmRejectionSettings{true, sensitivity}.cornerInset(); };
    for (const auto& [sensitivity, clamped] :
         {std::pair(-3.0, 0.0), {0.7, 0.7}, {2.0, 1.0}, {kNaN, 0.5}, {kInfinity, 0.5}, {-kInfinity, 0.5}}) {
        EXPECT_EQ(CornerPalmRejectionSettings::clampedSensitivity(sensitivity), clamped) << sensitivity;
        EXPECT_EQ(inset(sensitivity), inset(clamped)) << sensitivity;
    }
    EXPECT_DOUBLE_EQ(inset(0), 0.03);
    EXPECT_DOUBLE_EQ(inset(0.5), 0.105);
    EXPECT_DOUBLE_EQ(inset(1), 0.18);
}

TEST(CornerPalmRejectionSettings, CountsTheEdgesOfTheCornersIn) {
    const CornerPalmRejectionSettings settings;
    const double inset = settings.cornerInset();
    for (const Point p : {Point{inset, 0.95}, {1 - inset, 1 - inset}, {0.05, inset}, {0.95, 0.05}, {-1, 2}, {kNaN, 0}})
        EXPECT_TRUE(settings.contains(p)) << p.x << " " << p.y;
    for (const Point p : {Point{inset, 0.5}, {0.2, 0.9}, {0.1051, 0.05}, {0.8949, 0.95}})
        EXPECT_FALSE(settings.contains(p)) << p.x << " " << p.y;
}

std::string keptIds(CornerPalmRejectionFilter& filter, const TouchSamples& samples) {
    std::string ids;
    for (const TouchSample& sample : filter.process(samples))
        ids += std::to_string(sample.id) + " ";
    return ids;
}

TEST(CornerPalmRejectionFilter, JudgesAContactByWhereItStarts) {
    const Point corner{0.05, 0.05}, middle{0.5, 0.5};
    CornerPalmRejectionFilter filter({.isEnabled = true});
    EXPECT_EQ(keptIds(filter, {{3, middle}, {1, corner}, {2, middle}}), "3 2 ");
    EXPECT_EQ(keptIds(filter, {{2, corner}, {1, middle}, {3, corner}}), "2 3 ") << "they move and change their order";
    EXPECT_EQ(keptIds(filter, {{1, middle}, {4, corner}, {-5, middle}}), "-5 ");
    EXPECT_EQ(keptIds(filter, {{4, middle}, {-5, corner}}), "-5 ");
    EXPECT_EQ(keptIds(filter, {{1, middle}, {-5, corner}}), "1 -5 ") << "an id that returns is a new contact";
    EXPECT_EQ(keptIds(filter, {}), "");
    EXPECT_EQ(keptIds(filter, {{4, middle}, {-5, corner}}), "4 ") << "all are new after a lift of all";
    filter.reset();
    EXPECT_EQ(keptIds(filter, {{4, corner}, {-5, middle}}), "-5 ") << "all are new after a reset";
    filter.setSettings({.isEnabled = false});
    EXPECT_EQ(keptIds(filter, {{4, corner}, {-5, middle}}), "4 -5 ");
    filter.setSettings({.isEnabled = true});
    EXPECT_EQ(keptIds(filter, {{-5, corner}, {4, middle}}), "4 ") << "all are new after being off";
    EXPECT_EQ(keptIds(filter, {{4, middle}, {4, middle}}), "4 4 ");
    EXPECT_EQ(keptIds(filter, {{4, middle}, {-5, middle}}), "4 -5 ") << "an id twice hides no lift";
}

TEST(CornerPalmRejectionFilter, HoldsMoreContactsThanFitInPlace) {
    CornerPalmRejectionFilter filter({.isEnabled = true});
    TouchSamples samples;
    for (ContactId id = 40; id > 0; --id)
        samples.push_back({id, id % 2 == 0 ? Point{0, 0} : Point{0.5, 0.5}});
    EXPECT_EQ(filter.process(samples).size(), 20U);
    std::reverse(samples.begin(), samples.end());
    EXPECT_EQ(filter.process(samples).size(), 20U);
    samples.truncate(3);
    EXPECT_EQ(keptIds(filter, samples), "1 3 ");
}

}  // namespace
}  // namespace kinesta::testing
