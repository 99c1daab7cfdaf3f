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
    const auto take = [&](const DetectedGesture& gesture) {
        EXPECT_TRUE(session.intercept(gesture));
        return stateOf(session);
    };
    const DetectedAnchorDraw draw{AnchorCorner::topLeft, DrawPattern::lineUp};
    EXPECT_EQ(take(DetectedTap{2, GestureKind::doubleTap}), "2-finger double tap 1");
    EXPECT_EQ(take(DetectedTap{2, GestureKind::doubleTap}), "2-finger double tap 2");
    EXPECT_EQ(take(DetectedTap{3, GestureKind::doubleTap}), "3-finger double tap 1");
    EXPECT_EQ(take(DetectedTap{2, GestureKind::tipTapLeft}), "Single tip-tap left 1");
    EXPECT_EQ(take(draw), "Top left · Line up 1");
    EXPECT_EQ(take(draw), "Top left · Line up 2");
    EXPECT_EQ(take(DetectedEdgeSlide{2, EdgeSlideSide::left, 3}), "2-finger left edge slide up continuous");
    EXPECT_EQ(take(DetectedEdgeSlide{2, EdgeSlideSide::left, -1}), "2-finger left edge slide down continuous");
    EXPECT_EQ(take(draw), "Top left · Line up 1");
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
