#include "recognition/PhysicalClickRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

constexpr auto soft = PhysicalClickPressure::soft;
constexpr auto force = PhysicalClickPressure::force;

struct Click {
    Seconds time;
    int fingers;
    PhysicalClickPressure pressure;
};

std::string clicks(PhysicalClickRecognizer& recognizer, std::initializer_list<Click> list) {
    std::string results;
    for (const Click& c : list)
        results += (results.empty() ? "" : "; ") + text(recognizer.process(c.fingers, c.pressure, c.time));
    return results;
}

std::string clicks(std::initializer_list<Click> list) {
    PhysicalClickRecognizer recognizer;
    return clicks(recognizer, list);
}

TEST(PhysicalClickRecognizer, CountsClicksCloseTogetherAndForgetsThePressureOfUnlikeOnes) {
    EXPECT_EQ(clicks({{1, 2, soft}, {1.25, 2, soft}, {1.5001, 2, soft}}),
              "2 fingers x1 soft; 2 fingers x2 soft; 2 fingers x1 soft");
    EXPECT_EQ(clicks({{1, 5, force}, {1.1, 5, force}, {1.2, 5, force}, {1.3, 5, force}}),
              "5 fingers x1 force; 5 fingers x2 force; 5 fingers x3 force; 5 fingers x3 force");
    EXPECT_EQ(clicks({{1, 2, soft}, {1.1, 3, force}}), "2 fingers x1 soft; 3 fingers x1 force");
    EXPECT_EQ(clicks({{1, 2, soft}, {1.1, 2, force}, {1.2, 2, force}, {1.3, 2, force}, {2, 2, force}}),
              "2 fingers x1 soft; 2 fingers x2 any; 2 fingers x3 any; 2 fingers x3 any; 2 fingers x1 force");
    for (const int fingers : {-1, 0, 1, 6, 1000})
        EXPECT_EQ(clicks({{1, 2, soft}, {1.1, fingers, soft}, {1.2, 2, soft}}),
                  "2 fingers x1 soft; nothing; 2 fingers x1 soft")
            << fingers;
}

TEST(PhysicalClickRecognizer, OnlyTheExpectedSequenceIsFinalized) {
    PhysicalClickRecognizer recognizer;
    clicks(recognizer, {{1, 2, soft}, {1.1, 2, force}});
    EXPECT_EQ(recognizer.finalize({2, 2, soft}), std::nullopt) << "its pressure has become any";
    EXPECT_EQ(text(recognizer.finalize({2, 2, std::nullopt})), "2 fingers x2 any");
    EXPECT_EQ(clicks(recognizer, {{1.2, 2, soft}}), "2 fingers x1 soft");
    recognizer.reset();
    EXPECT_EQ(recognizer.finalize({2, 1, soft}), std::nullopt);
}

}  // namespace
}  // namespace kinesta::testing
