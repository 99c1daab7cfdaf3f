#include "recognition/EdgeSlideRecognizer.h"

#include <gtest/gtest.h>

#include <limits>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

PadScript fingersAt(std::initializer_list<double> xs) {
    PadScript pad;
    ContactId id = 0;
    for (const double x : xs)
        pad.down(++id, {x, 0.5});
    return pad;
}

/// Fingers 1 and 2 at the left edge, from y = 0 in steps of so much.
PadScript upward(std::initializer_list<double> ways) {
    PadScript pad = PadScript().down(1, {0.1, 0}).down(2, {0.2, 0});
    double y = 0;
    for (const double way : ways) {
        y += way;
        pad.through(1, {{0.1, y}}).move(2, {0.2, y});
    }
    return pad;
}

TEST(EdgeSlideRecognizer, StartsWithTwoToFiveFingersAllAtOneEdge) {
    const auto slide = [](std::initializer_list<double> xs) {
        PadScript pad = fingersAt(xs).after(0.01);
        ContactId id = 0;
        for (const double x : xs)
            pad.move(++id, {x, 0.55});
        return pad;
    };
    expectResults<EdgeSlideRecognizer>({
        {"left bound", slide({0.10, 0.28}), "2 fingers left 2"},
        {"beyond it", slide({0.10, 0.2801}), ""},
        {"right bound", slide({0.72, 0.90}), "2 fingers right 2"},
        {"beyond it", slide({0.7199, 0.90}), ""},
        {"one finger at either edge", slide({0.1, 0.9}), ""},
        {"one", slide({0.1}), ""},
        {"five", slide({0.05, 0.1, 0.15, 0.2, 0.25}), "5 fingers left 2"},
        {"six", slide({0.05, 0.1, 0.15, 0.2, 0.25, 0.28}), ""},
    });
}

TEST(EdgeSlideRecognizer, GoesOnInAWiderBandWithTheSameFingers) {
    const auto drifting = [](double x, double start = 0.1) {
        PadScript pad = fingersAt({start, start + 0.1}).through(1, {{x, 0.5}, {start, 0.61}});
        return pad.move(2, {start + 0.1, 0.61});
    };
    const PadScript three = fingersAt({0.05, 0.1, 0.15}).after(0.01);
    const PadScript lifted = PadScript(three).up(3).move(1, {0.05, 0.6}).glide({1, 2}, {0, 0.2}, 0.016);
    expectResults<EdgeSlideRecognizer>({
        {"drifted as far as allowed", drifting(0.38), "2 fingers left 4"},
        {"drifted too far: starts anew from the frame after", drifting(0.3801), ""},
        {"right bound", drifting(0.62, 0.8), "2 fingers right 4"},
        {"beyond it", drifting(0.6199, 0.8), ""},
        {"a finger lifts: the others start anew, but not in that frame", lifted, "2 fingers left 4"},
        {"a finger is replaced", PadScript(three).up(3).down(4, {0.1, 0.5}).through(4, {{0.1, 0.9}}), ""},
        {"a finger joins outside", PadScript(three).down(4, {0.9, 0.5}).through(1, {{0.05, 0.9}}), ""},
        {"lift ends it", PadScript(three).upAll().after(0.01).down(1, {0.05, 0.9}).down(2, {0.1, 0.9}), ""},
    });
}

TEST(EdgeSlideRecognizer, CountsWholeStepsAndKeepsTheRest) {
    expectResults<EdgeSlideRecognizer>({
        {"no way", upward({0, 0}), ""},
        {"a step in two parts", upward({0.024, 0.002}), "2 fingers left 1"},
        {"almost", upward({0.0249}), ""},
        {"exactly a step", upward({0.025}), "2 fingers left 1"},
        {"several at once leave the rest", upward({0.06, 0.014, 0.002}), "2 fingers left 2; 2 fingers left 1"},
        {"downward", upward({-0.051, -0.023, -0.002}), "2 fingers left -2; 2 fingers left -1"},
        {"turning back pays the rest first", upward({0.049, -0.04, -0.01}), "2 fingers left 1; 2 fingers left -1"},
        {"the mean counts", fingersAt({0.1, 0.1}).through(1, {{0.1, 0.61}}), "2 fingers left 2"},
    });
}

TEST(EdgeSlideRecognizer, WaysThatNoFingerGoesEndTheSlide) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double y : {1e18, -1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
        EdgeSlideRecognizer recognizer;
        EXPECT_EQ(run(recognizer, upward({}).through(1, {{0.1, y}})), "") << y;
        EXPECT_EQ(run(recognizer, upward({0.03})), "2 fingers left 1") << "after " << y;
    }
    EdgeSlideRecognizer recognizer;
    EXPECT_EQ(run(recognizer, upward({1e17})), "2 fingers left 4000000000000000000") << "steps can still be counted";
}

}  // namespace
}  // namespace kinesta::testing
