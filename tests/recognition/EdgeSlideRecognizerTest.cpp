#include "recognition/EdgeSlideRecognizer.h"

#include <gtest/gtest.h>

#include <limits>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

PadScript fingersAt(std::initializer_list<double> xs) {
    PadScript pad;
    pad.at(0);
    ContactId id = 0;
    for (const double x : xs)
        pad.down(++id, {x, 0.5});
    return pad;
}

PadScript& lift(PadScript& pad, std::initializer_list<ContactId> ids, double dy) {
    pad.after(0.01);
    for (const ContactId id : ids)
        pad.move(id, {0.1, 0.5 + dy});
    return pad;
}

/// Two fingers at the left edge, from y = 0 in steps of so much.
PadScript upward(std::initializer_list<double> ways) {
    PadScript pad;
    pad.at(0).down(1, {0.1, 0}).down(2, {0.2, 0});
    double y = 0;
    for (const double way : ways) {
        y += way;
        pad.after(0.01).move(1, {0.1, y}).move(2, {0.2, y});
    }
    return pad;
}

TEST(EdgeSlideRecognizer, StartsWithTwoToFiveFingersAllAtOneEdge) {
    const auto slide = [](std::initializer_list<double> xs) {
        PadScript pad = fingersAt(xs);
        pad.after(0.01);
        ContactId id = 0;
        for (const double x : xs)
            pad.move(++id, {x, 0.55});
        return pad;
    };
    expectResults<EdgeSlideRecognizer>({
        {"left bound", slide({0.10, 0.28}), {"2 fingers left 2"}},
        {"beyond it", slide({0.10, 0.2801}), {}},
        {"right bound", slide({0.72, 0.90}), {"2 fingers right 2"}},
        {"beyond it", slide({0.7199, 0.90}), {}},
        {"one finger at either edge", slide({0.1, 0.9}), {}},
        {"one", slide({0.1}), {}},
        {"five", slide({0.05, 0.1, 0.15, 0.2, 0.25}), {"5 fingers left 2"}},
        {"six", slide({0.05, 0.1, 0.15, 0.2, 0.25, 0.28}), {}},
    });
}

TEST(EdgeSlideRecognizer, GoesOnInAWiderBandWithTheSameFingers) {
    const auto drifting = [](double x, double start = 0.1) {
        PadScript pad = fingersAt({start, start + 0.1}).after(0.01).move(1, {x, 0.5});
        return pad.after(0.01).move(1, {start, 0.61}).move(2, {start + 0.1, 0.61});
    };
    PadScript three = fingersAt({0.05, 0.1, 0.15});
    const Texts none;
    expectResults<EdgeSlideRecognizer>({
        {"drifted as far as allowed", drifting(0.38), {"2 fingers left 4"}},
        {"drifted too far: starts anew from the frame after", drifting(0.3801), none},
        {"right bound", drifting(0.62, 0.8), {"2 fingers right 4"}},
        {"beyond it", drifting(0.6199, 0.8), none},
        {"a finger lifts: the others start anew, but not in that frame",
         PadScript(three).after(0.01).up(3).move(1, {0.05, 0.6}).glide({1, 2}, {0, 0.2}, 0.016),
         {"2 fingers left 4"}},
        {"a finger is replaced", PadScript(three).after(0.01).up(3).down(4, {0.1, 0.5}).after(0.01).move(4, {0.1, 0.9}),
         none},
        {"a finger joins outside", PadScript(three).after(0.01).down(4, {0.9, 0.5}).after(0.01).move(1, {0.05, 0.9}),
         none},
        {"lift ends it", PadScript(three).after(0.01).upAll().after(0.01).down(1, {0.05, 0.9}).down(2, {0.1, 0.9}),
         none},
    });
}

TEST(EdgeSlideRecognizer, CountsWholeStepsAndKeepsTheRest) {
    PadScript onlyOneMoves = fingersAt({0.1, 0.1});
    expectResults<EdgeSlideRecognizer>({
        {"no way", upward({0, 0}), {}},
        {"a step in two parts", upward({0.024, 0.002}), {"2 fingers left 1"}},
        {"almost", upward({0.0249}), {}},
        {"exactly a step", upward({0.025}), {"2 fingers left 1"}},
        {"several at once leave the rest", upward({0.06, 0.014, 0.002}), {"2 fingers left 2", "2 fingers left 1"}},
        {"downward", upward({-0.051, -0.023, -0.002}), {"2 fingers left -2", "2 fingers left -1"}},
        {"turning back pays the rest first", upward({0.049, -0.04, -0.01}), {"2 fingers left 1", "2 fingers left -1"}},
        {"the mean counts", lift(onlyOneMoves, {1}, 0.11), {"2 fingers left 2"}},
    });
}

TEST(EdgeSlideRecognizer, WaysThatNoFingerGoesEndTheSlide) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    for (const double y : {1e18, -1e300, kInfinity, -kInfinity, kNaN}) {
        EdgeSlideRecognizer recognizer;
        EXPECT_EQ(run(recognizer, fingersAt({0.1, 0.2}).at(1).move(1, {0.1, y})), Texts{}) << y;
        PadScript after = fingersAt({0.1, 0.2});
        EXPECT_EQ(run(recognizer, lift(after, {1, 2}, 0.03)), Texts{"2 fingers left 1"}) << "after " << y;
    }
    EdgeSlideRecognizer recognizer;
    EXPECT_EQ(run(recognizer, fingersAt({0.1, 0.2}).at(1).move(1, {0.1, 1e17}).move(2, {0.1, 1e17})),
              Texts{"2 fingers left 4000000000000000000"})
        << "as long as steps can be counted";
}

}  // namespace
}  // namespace kinesta::testing
