#include <gtest/gtest.h>

#include <map>

#include "ui/pictures/GesturePerformance.h"
#include "ui/widgets/PadPainter.h"

namespace kinesta::testing {
namespace {

std::vector<PadGesture> everyGesture() {
    std::vector<PadGesture> gestures{{}};
    for (const GestureKind kind : allCases<GestureKind>()) {
        if (kind == GestureKind::anchorDraw) {
            for (const AnchorCorner corner : allCases<AnchorCorner>())
                for (const DrawPattern pattern : allCases<DrawPattern>())
                    gestures.push_back({kind, 0, EdgeSlideSide::both, corner, pattern});
        } else if (usesFingerCount(kind)) {
            for (const EdgeSlideSide side : allCases<EdgeSlideSide>())
                for (int fingers = 2; fingers <= 5; ++fingers)
                    if (kind == GestureKind::edgeSlide || side == EdgeSlideSide::both)
                        gestures.push_back({kind, fingers, side});
        } else if (isConfigured(kind)) {
            gestures.push_back({kind});
        }
    }
    return gestures;
}

}  // namespace

TEST(PadPicture, DiffersForEveryGestureAtEverySizeAndInBothAppearances) {
    for (const auto appearance : {NamedAppearance::aqua, NamedAppearance::darkAqua}) {
        const AppTheme theme = AppTheme::of(appearance, ThemeContrast::standard);
        for (const double width : {24, 32, 200}) {
            std::map<QByteArray, std::size_t> seen;
            const auto gestures = everyGesture();
            for (std::size_t i = 0; i < gestures.size(); ++i) {
                const QImage image =
                    PadPainter::image(PadDrawing::of(gestures[i], PadScene::still(gestures[i]), width), theme, 1);
                const QByteArray bits(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
                const auto [other, isNew] = seen.try_emplace(bits, i);
                EXPECT_TRUE(isNew) << i << " looks like " << other->second << " at " << width;
            }
        }
    }
}

// What leaves the pad would be cut off at the edge of the picture.
TEST(GesturePerformance, KeepsFingersOnThePadAndEndsStill) {
    for (const PadGesture& gesture : everyGesture()) {
        const GesturePerformance performance(gesture, 0.25);
        const PadScene still = PadScene::still(gesture);
        for (double time = 0; time < performance.duration() + 100; time += 10) {
            const PadScene scene = performance.at(time);
            for (const auto& finger : scene.fingers) {
                EXPECT_GT(std::min({finger.at.x, finger.at.y, 1 - finger.at.x, 1 - finger.at.y}), 0.05);
                EXPECT_TRUE(finger.opacity >= 0 && finger.opacity <= 1);
            }
            if (time >= performance.duration()) {
                EXPECT_EQ(scene.fingers.size(), still.fingers.size());
                EXPECT_EQ(scene.press, still.press);
            }
        }
    }
}

TEST(GesturePerformance, FollowsTheTempoOfFingers) {
    const GesturePerformance doubleTap({GestureKind::doubleTap, 3}, 0.25);
    EXPECT_EQ(doubleTap.at(100).fingers.size(), 3U);
    EXPECT_TRUE(doubleTap.at(200).fingers.empty());
    EXPECT_EQ(doubleTap.at(209).bars, (std::vector{1, 0.25}));
    EXPECT_EQ(doubleTap.at(210).bars, (std::vector<double>{1, 1}));
    EXPECT_EQ(GesturePerformance({GestureKind::doubleTap, 3}, 0.4).at(339).bars.back(), 0.25);

    const GesturePerformance anyClick({GestureKind::singleClick, 2}, 0.25);
    const double half = anyClick.duration() / 2;
    double deepest[2] = {};
    for (double time = 0; time < 690; ++time)
        for (const int cycle : {0, 1})
            deepest[cycle] = std::max(deepest[cycle], anyClick.at(cycle * half + time).press);
    EXPECT_EQ(deepest[0], 1);
    EXPECT_EQ(deepest[1], 2);

    const GesturePerformance slide({GestureKind::edgeSlide, 2, EdgeSlideSide::right}, 0.25);
    const double start = slide.at(100).fingers.front().at.y;
    EXPECT_NEAR(slide.at(650).fingers.front().at.y, start + 0.2, 1e-9);
    EXPECT_NEAR(slide.at(1350).fingers.front().at.y, start - 0.2, 1e-9);
    EXPECT_NEAR(slide.at(1850).fingers.front().at.y, start, 1e-9);

    const PadGesture circle{GestureKind::anchorDraw, 0, EdgeSlideSide::both, AnchorCorner::topLeft,
                            DrawPattern::circleClockwise};
    const GesturePerformance drawing(circle, 0.25);
    EXPECT_EQ(drawing.at(450).fingers.size(), 2U);
    EXPECT_NEAR(drawing.at(490 + 410).drawn, 0.5, 1e-9);
    EXPECT_GT(drawing.at(490 + 200).fingers.back().at.x, PadScene::still(circle).fingers.back().at.x);
    EXPECT_EQ(drawing.at(490 + 820 + 180).head, 1);
}

}  // namespace kinesta::testing
