#include "feedback/GestureTestSession.h"

#include <gtest/gtest.h>

namespace kinesta {
namespace {

/// "text count", "text continuous", or "-" before anything is recognized.
std::string stateOf(const GestureTestSession& session) {
    const auto& text = session.lastDetection().value();
    const auto count = session.consecutiveDetectionCount().value();
    const bool isContinuous = session.isContinuousDetection().value();
    EXPECT_EQ(count == 0, isContinuous || !text);
    return text.value_or("-") + (isContinuous ? " continuous" : " " + std::to_string(count));
}

TEST(GestureTestSession, DescribesAndCountsWhatItTakes) {
    GestureTestSession session;
    session.begin();
    const auto tap = [&](std::int64_t fingers, GestureKind kind) {
        EXPECT_TRUE(session.interceptTap(fingers, kind));
        return stateOf(session);
    };
    const auto draw = [&] {
        EXPECT_TRUE(session.intercept(DetectedAnchorDraw{AnchorCorner::topLeft, DrawPattern::lineUp}));
        return stateOf(session);
    };
    const auto slide = [&](std::int64_t steps) {
        EXPECT_TRUE(session.intercept(DetectedEdgeSlide{2, EdgeSlideSide::left, steps}));
        return stateOf(session);
    };
    EXPECT_EQ(tap(2, GestureKind::doubleTap), "2-finger double tap 1");
    EXPECT_EQ(tap(2, GestureKind::doubleTap), "2-finger double tap 2");
    EXPECT_EQ(tap(3, GestureKind::doubleTap), "3-finger double tap 1");
    EXPECT_EQ(tap(2, GestureKind::tipTapLeft), std::string(title(GestureKind::tipTapLeft)) + " 1");
    EXPECT_EQ(draw(), "Top left · Line up 1");
    EXPECT_EQ(draw(), "Top left · Line up 2");
    EXPECT_EQ(slide(3), "2-finger left edge slide up continuous");
    EXPECT_EQ(slide(-1), "2-finger left edge slide down continuous");
    EXPECT_EQ(draw(), "Top left · Line up 1");
}

TEST(GestureTestSession, TakesGesturesOnlyBetweenBeginAndEnd) {
    GestureTestSession session;
    const DetectedGesture tap = DetectedTap{2, GestureKind::singleTap};
    EXPECT_FALSE(session.intercept(tap));
    EXPECT_EQ(stateOf(session), "- 0");
    session.begin();
    EXPECT_TRUE(session.intercept(tap));
    session.begin();
    EXPECT_EQ(stateOf(session), "2-finger single tap 1");
    session.end();
    EXPECT_EQ(stateOf(session), "- 0");
    EXPECT_FALSE(session.intercept(tap));
    session.begin();
    EXPECT_EQ(stateOf(session), "- 0");
}

}  // namespace
}  // namespace kinesta
